#include "platform/linux/x11/xcbscreensource.h"

#include "platform/linux/window/screenchanges.h"
#include "platform/linux/x11/base/nativescreen.h"
#include "platform/linux/x11/base/xserver.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

bool hasSeveralScreens()
{
    return QGuiApplication::screens().size() > 1;
}

} // namespace

XcbScreenSource::XcbScreenSource()
    : m_docks(qtConnection())
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(0ms);
    connect(&m_settle, &QTimer::timeout, this, &XcbScreenSource::settle);
    followScreens(*this, [this] { noteRearranged(); });
    if (hasSeveralScreens()) {
        m_struts = m_docks.topStruts();
    }
    qApp->installNativeEventFilter(this);
}

QList<Screen> XcbScreenSource::screens() const
{
    QList<Screen> screens;
    for (const auto* screen : QGuiApplication::screens()) {
        const QRectF frame = screen->geometry();
        auto visible = QRectF(screen->availableGeometry());
        if (hasSeveralScreens()) {
            const auto native = nativeGeometry(*screen);
            const auto hidden = visibleTop(native, m_struts) - native.top();
            visible = frame.adjusted(0, hidden / screen->devicePixelRatio(), 0, 0);
        }
        screens.append({.frame = frame,
                        .visibleFrame = visible,
                        .isMain = screen == QGuiApplication::primaryScreen()});
    }
    return screens;
}

bool XcbScreenSource::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event != nullptr && eventKind(*event) == XCB_PROPERTY_NOTIFY
        && m_docks.isAboutDocks(*reinterpret_cast<const xcb_property_notify_event_t*>(event))) {
        m_settle.start();
    }
    return false;
}

void XcbScreenSource::noteRearranged()
{
    m_isRearranged = true;
    m_settle.start();
}

void XcbScreenSource::settle()
{
    const auto struts = hasSeveralScreens() ? m_docks.topStruts() : QList<TopStrut>();
    const auto isChanged = std::exchange(m_isRearranged, false) || struts != m_struts;
    m_struts = struts;
    if (isChanged) {
        Q_EMIT changed();
    }
}

} // namespace quib
