// A window of Wayland's own that prints what reaches it. "--maximized" or "--fullscreen" say how
// large it is; a press in it drags the files named behind that. It takes every file let go over it.
#include <QDrag>
#include <QDropEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QTextStream>
#include <QUrl>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void say(const QString& text)
{
    QTextStream(stdout) << text << Qt::endl;
}

QString placeOf(QPointF position)
{
    const auto point = position.toPoint();
    return u"%1,%2"_s.arg(point.x()).arg(point.y());
}

} // namespace

class NativeWindow : public QRasterWindow {
public:
    explicit NativeWindow(const QStringList& files)
        : m_files(files)
    {
        setTitle(u"Native window"_s);
        setFlag(Qt::FramelessWindowHint);
        resize(700, 420);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(QRect({}, size()), QColor(u"#508040"_s));
        if (std::exchange(m_shown, size()) != size()) {
            say(u"shown %1x%2"_s.arg(width()).arg(height()));
        }
    }

    bool event(QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Enter: say(u"enter"_s); break;
        case QEvent::Leave: say(u"leave"_s); break;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: take(*static_cast<QDropEvent*>(event)); return true;
        case QEvent::DragLeave: say(u"drag leave"_s); break;
        default: break;
        }
        return QRasterWindow::event(event);
    }

    void focusInEvent(QFocusEvent* /*event*/) override { say(u"focus"_s); }
    void focusOutEvent(QFocusEvent* /*event*/) override { say(u"blur"_s); }
    void keyPressEvent(QKeyEvent* event) override
    {
        const auto isText = event->key() > Qt::Key_Space && event->key() <= Qt::Key_AsciiTilde;
        say(u"key "_s
            + (isText ? event->text() : QVariant::fromValue(Qt::Key(event->key())).toString()));
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        say(u"motion "_s + placeOf(event->position()));
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        say(u"release "_s + placeOf(event->position()));
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        say(u"press "_s + placeOf(event->position()));
        if (m_files.isEmpty() || event->button() != Qt::LeftButton) {
            return;
        }
        QList<QUrl> urls;
        for (const auto& file : m_files) {
            urls << QUrl::fromLocalFile(file);
        }
        auto* contents = new QMimeData; // Which the drag takes.
        contents->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(contents);
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            say(action == Qt::IgnoreAction ? u"drag is refused"_s : u"drag is welcome"_s);
        });
        say(u"drag begins"_s);
        const auto action = drag->exec(Qt::CopyAction);
        say(u"drag ended with action %1"_s.arg(static_cast<int>(action)));
    }

private:
    static void take(QDropEvent& event)
    {
        if (!event.mimeData()->hasUrls()) {
            event.ignore();
            return;
        }
        event.setDropAction(Qt::CopyAction);
        event.accept();
        if (event.type() == QEvent::DragEnter) {
            say(u"drag enter"_s);
        }
        if (event.type() == QEvent::Drop) {
            say(u"dropped "_s
                + QString::fromUtf8(event.mimeData()->data(u"text/uri-list"_s)).simplified());
        }
    }

    QStringList m_files;
    QSize m_shown;
};

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "wayland");
    const QGuiApplication app(argc, argv);
    auto arguments = QGuiApplication::arguments().sliced(1);
    const auto size = arguments.isEmpty() ? QString() : arguments.takeFirst();
    NativeWindow window(arguments);
    if (size == "--maximized"_L1) {
        window.showMaximized();
    } else if (size == "--fullscreen"_L1) {
        window.showFullScreen();
    } else {
        window.show();
    }
    return QGuiApplication::exec();
}
