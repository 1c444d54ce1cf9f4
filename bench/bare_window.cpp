/// What the panel is measured against: a Qt Quick window of the panel's size with one rectangle
/// where the notch is. With --poll it follows the pointer and shows a card at once when the notch
/// is touched; with --field it holds one text field.

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize PanelSize{760, 330};

// The card is not black: on a screen without a compositor black is what stands around it.
constexpr auto Scene = R"(
import QtQuick

Item {
    property bool isExpanded: false

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: parent.isExpanded ? 700 : 190
        height: parent.isExpanded ? 290 : 24
        color: parent.isExpanded ? "#303030" : "black"
    }
%1
}
)";

constexpr auto Field = R"(
    TextInput {
        x: 52
        y: 50
        width: 656
        height: 20
        color: "white"
        font.pixelSize: 12
        focus: true
    }
)";

/// Asks the server where the pointer is, sixty times a second, on a connection of its own.
class Poll : public QObject {
public:
    explicit Poll(QQuickItem& scene)
        : m_scene(scene)
        , m_connection(xcb_connect(nullptr, nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
    {
        connect(&m_timer, &QTimer::timeout, this, &Poll::look);
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(16ms);
    }
    ~Poll() override { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Poll)

private:
    void look()
    {
        const std::unique_ptr<xcb_query_pointer_reply_t, decltype(&std::free)> reply(
            xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr),
            &std::free);
        if (!reply) {
            return;
        }
        const auto at = m_scene.mapFromGlobal(QPointF(reply->root_x, reply->root_y));
        const bool isExpanded = m_scene.property("isExpanded").toBool();
        const QRectF sensitive = isExpanded ? QRectF(30, 0, 700, 290) : QRectF(270, 0, 220, 30);
        if (sensitive.contains(at) != isExpanded) {
            m_scene.setProperty("isExpanded", !isExpanded);
        }
    }

    QQuickItem& m_scene;
    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    QTimer m_timer;
};

} // namespace

int main(int argc, char* argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication app(argc, argv);
    const bool hasField = QGuiApplication::arguments().contains(u"--field"_s);

    QQuickView view;
    auto format = view.requestedFormat();
    format.setAlphaBufferSize(8);
    view.setFormat(format);
    view.setColor(Qt::transparent);
    view.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    view.setResizeMode(QQuickView::SizeRootObjectToView);

    QQmlComponent component(view.engine());
    component.setData(
        QString::fromLatin1(Scene).arg(hasField ? QLatin1String(Field) : QLatin1String()).toUtf8(),
        {});
    auto* scene = qobject_cast<QQuickItem*>(component.create());
    if (scene == nullptr) {
        return 1;
    }
    view.setContent({}, &component, scene);
    const auto width = view.screen()->geometry().width();
    view.setGeometry({QPoint((width - PanelSize.width()) / 2, 0), PanelSize});
    view.show();

    std::unique_ptr<Poll> poll;
    if (QGuiApplication::arguments().contains(u"--poll"_s)) {
        poll = std::make_unique<Poll>(*scene);
    }
    return QGuiApplication::exec();
}
