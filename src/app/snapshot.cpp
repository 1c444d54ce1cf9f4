#include "app/snapshot.h"

#include "app/appdelegate.h"
#include "app/notch/geometry.h"
#include "app/notchpanel.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib::Snapshot {

namespace {

constexpr auto SettlingTime = 400ms;
constexpr auto LookingTime = 20ms;
constexpr std::chrono::milliseconds LongestWait = 3s; // For all tabs together.

/// The main loop of this mode: there is no other.
void runLoop(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(time);
    loop.exec();
}

/// Icons and events come when others have answered. Patience ends before the user's does.
void awaitAnswers(const AppDelegate& delegate, const QDeadlineTimer& deadline)
{
    const auto& platform = delegate.platform();
    while ((platform.files->isBusy() || platform.icons->isBusy() || delegate.calendar().isWaiting())
           && !deadline.hasExpired()) {
        runLoop(LookingTime);
    }
}

/// A panel that no window system knows of. Its render control is never initialised: the software
/// scene graph needs no graphics device.
class OffscreenPanel {
public:
    explicit OffscreenPanel(const ViewContext& context)
    {
        m_window.setColor(Qt::transparent);
        m_window.setGeometry(QRect({}, PanelSize.toSize()));
        m_window.contentItem()->setSize(PanelSize);
        m_engine.addImportPath(u"qrc:/qt/qml"_s);
        QQmlComponent component(&m_engine, rootSource());
        m_root.reset(qobject_cast<QQuickItem*>(
            component.createWithInitialProperties(rootProperties(context))));
        if (m_root) {
            m_root->setParentItem(m_window.contentItem());
            m_root->setSize(PanelSize);
            m_control.polishItems(); // Lists make their rows, and these ask for icons.
        }
    }

    /// Null where there is no view to draw.
    QImage picture()
    {
        if (!m_root) {
            return {};
        }
        const auto scale = qGuiApp->devicePixelRatio();
        QImage image((PanelSize * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(scale);
        auto target = QQuickRenderTarget::fromPaintDevice(&image);
        target.setDevicePixelRatio(scale);
        m_window.setRenderTarget(target);
        m_control.polishItems();
        m_control.beginFrame();
        m_control.sync();
        m_control.render();
        m_control.endFrame();
        return image;
    }

private:
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_root;
};

} // namespace

void run(const QString& folder, AppDelegate& delegate)
{
    delegate.model().setMotionReduced(true);
    const QDeadlineTimer deadline(SettlingTime * AllTabs.size() + LongestWait);
    for (const auto tab : AllTabs) {
        delegate.model().setTab(tab);
        delegate.model().setExpanded(true);
        OffscreenPanel panel(delegate.viewContext());
        runLoop(SettlingTime);
        awaitAnswers(delegate, deadline);
        panel.picture().save(QDir(folder).filePath(rawText(tab) + u".png"_s), "PNG");
    }
}

} // namespace quib::Snapshot
