// A small window at the lower right of the screen that takes files. It prints that some are over
// it, and for each drop the action that was proposed and the paths.
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QRasterWindow>
#include <QTextStream>
#include <QUrl>

class DropTarget : public QRasterWindow {
public:
    DropTarget()
    {
        setTitle(QStringLiteral("Drop target"));
        setGeometry(1300, 600, 200, 100);
    }

protected:
    bool event(QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: take(*static_cast<QDropEvent*>(event)); return true;
        default: return QRasterWindow::event(event);
        }
    }

private:
    static void take(QDropEvent& event)
    {
        if (!event.mimeData()->hasUrls()) {
            event.ignore();
            return;
        }
        event.acceptProposedAction();
        QTextStream out(stdout);
        if (event.type() == QEvent::DragEnter) {
            out << "something is over it" << Qt::endl;
        }
        if (event.type() == QEvent::Drop) {
            out << "took with action " << static_cast<int>(event.proposedAction());
            for (const auto& url : event.mimeData()->urls()) {
                out << " " << url.toLocalFile();
            }
            out << Qt::endl;
        }
    }
};

int main(int argc, char* argv[])
{
    const QGuiApplication app(argc, argv);
    DropTarget target;
    target.show();
    return QGuiApplication::exec();
}
