#include "platform/linux/wayland/waylandpanelhost.h"

#include "platform/linux/wayland/qtwayland.h"
#include "platform/linux/window/windowpointer.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QTimer>

#include <utility>

#include <qpa/qplatformwindow.h>
#include <wayland-client.h>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto BeforeTheNextTry = 1s;

} // namespace

WaylandPanelHost::WaylandPanelHost(WindowPointer& pointer)
    : m_shell(qtDisplay())
    , m_pointer(pointer)
{
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, [this] { m_surface.reset(); });
}

void WaylandPanelHost::adopt(QWindow& window)
{
    m_window = &window;
    makeBareWhenCreated(window);
    window.installEventFilter(this);
    m_pointer.watch(window);
}

void WaylandPanelHost::place(const QRectF& frame)
{
    m_frame = frame.toRect();
    m_pointer.setOrigin(m_frame.topLeft());
    if (m_window) {
        m_window->setGeometry(m_frame);
    }
    if (m_isShown) {
        show();
    }
}

void WaylandPanelHost::setInputRegion(const QRegion& region)
{
    m_inputRegion = region;
}

void WaylandPanelHost::setHoverRect(const QRect& rect)
{
    if (std::exchange(m_hoverRect, rect) != rect) {
        applyHoverRect();
    }
}

void WaylandPanelHost::orderFront()
{
    m_isShown = true;
    setBelowWindows(false);
    show();
}

bool WaylandPanelHost::takeKeyboard()
{
    if (!m_surface || m_keyboard != Keyboard::NotWanted) {
        return false;
    }
    const auto isHere = isFocused() && !m_return.isUnderWay();
    m_return.cancel();
    m_keyboard = isHere ? Keyboard::Lent : Keyboard::Asked;
    m_surface->setKeyboard(isHere ? LayerSurface::Keyboard::OnDemand
                                  : LayerSurface::Keyboard::AtOnce);
    return true;
}

void WaylandPanelHost::giveBackKeyboard(std::optional<quint32> /*click*/)
{
    const bool wasWanted = std::exchange(m_keyboard, Keyboard::NotWanted) != Keyboard::NotWanted;
    if (m_surface && wasWanted) {
        m_surface->setKeyboard(LayerSurface::Keyboard::Never);
    }
    returnWhatWasNotAskedFor();
}

QRect WaylandPanelHost::cardFrame() const
{
    return m_inputRegion.boundingRect().translated(m_frame.topLeft());
}

void WaylandPanelHost::placeBelow(quint32 /*window*/)
{
    setBelowWindows(true);
}

bool WaylandPanelHost::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn: followKeyboard(true); break;
    case QEvent::FocusOut: followKeyboard(false); break;
    case QEvent::TouchEnd:
    case QEvent::MouseButtonRelease: returnWhatWasNotAskedFor(); break;
    case QEvent::PlatformSurface: followSurface(static_cast<QPlatformSurfaceEvent&>(*event)); break;
    case QEvent::KeyPress:
        followKeyboard(true); // Qt tells nothing of one that was lost and came back at once.
        [[fallthrough]];
    case QEvent::KeyRelease:
        // What is typed while the keyboard is on its way back is not meant for hidden fields.
        return m_inputRegion.isEmpty();
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return LinuxPanelHost::eventFilter(object, event);
}

/// What has gone is not spoken of any more.
void WaylandPanelHost::followSurface(const QPlatformSurfaceEvent& event)
{
    if (event.surfaceEventType() == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed) {
        m_surface.reset();
    }
}

/// On the screen where its place is; not while there is no such screen.
void WaylandPanelHost::show()
{
    auto* screen = QGuiApplication::screenAt(m_frame.center());
    if (m_window && screen && isReal(*screen) && !isOn(*screen)) {
        makeSurface(*screen);
    }
}

void WaylandPanelHost::showAnew()
{
    m_screen.clear();
    show();
}

void WaylandPanelHost::setBelowWindows(bool below)
{
    if (std::exchange(m_isBelowWindows, below) != below) {
        showAnew();
    }
}

bool WaylandPanelHost::isOn(const QScreen& screen) const
{
    return m_surface && m_screen == &screen;
}

void WaylandPanelHost::makeSurface(QScreen& screen)
{
    m_surface.reset(); // The role goes before what has it.
    m_window->destroy();
    m_window->setScreen(&screen);
    m_window->setGeometry(m_frame);
    m_window->create();
    m_surface = std::make_unique<LayerSurface>(
        m_shell, surfaceOf(*m_window), outputOf(screen), m_window->handle()->geometry().size(),
        m_isBelowWindows ? LayerSurface::Layer::BelowWindows : LayerSurface::Layer::AboveAll);
    if (!m_surface->isReady()) {
        m_surface.reset();
        m_window->destroy();
        QTimer::singleShot(BeforeTheNextTry, this, &WaylandPanelHost::show);
        return;
    }
    m_screen = &screen;
    connect(m_surface.get(), &LayerSurface::closed, this, &WaylandPanelHost::showAnew,
            Qt::QueuedConnection);
    m_window->show();
    applyHoverRect(); // Qt takes its mask for one of the compositor's points while it shows it.
    if (m_keyboard != Keyboard::NotWanted) {
        m_keyboard = Keyboard::Asked;
        m_surface->setKeyboard(LayerSurface::Keyboard::AtOnce);
    }
}

void WaylandPanelHost::applyHoverRect()
{
    if (!m_window) {
        return;
    }
    m_window->setMask(m_hoverRect.isEmpty() ? Nowhere : m_hoverRect);
    if (m_surface) {
        wl_surface_commit(surfaceOf(*m_window)); // Not all versions of Qt do.
    }
}

/// Once the panel has it, whoever is pressed next may have it.
void WaylandPanelHost::followKeyboard(bool hasIt)
{
    if (!m_surface) {
        return;
    }
    if (hasIt && m_keyboard == Keyboard::Asked) {
        m_keyboard = Keyboard::Lent;
        m_surface->setKeyboard(LayerSurface::Keyboard::OnDemand);
    } else if (!hasIt && m_keyboard == Keyboard::Lent) {
        m_keyboard = Keyboard::NotWanted;
        m_surface->setKeyboard(LayerSurface::Keyboard::Never);
    }
}

/// Some compositors give it to whatever is pressed. A text that is pressed has asked by the time
/// that the compositor answers.
void WaylandPanelHost::returnWhatWasNotAskedFor()
{
    if (isFocused() && m_keyboard == Keyboard::NotWanted) {
        m_return.start(*m_window);
    }
}

bool WaylandPanelHost::isFocused() const
{
    return m_window && QGuiApplication::focusWindow() == m_window;
}

} // namespace quib
