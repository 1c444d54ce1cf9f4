// A small window at the lower left of the screen from which the files named as arguments can be
// dragged. It prints the action that the drag ended with.
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QTextStream>
#include <QUrl>

class DragSource : public QRasterWindow {
public:
    explicit DragSource(const QStringList& paths)
        : m_paths(paths)
    {
        setTitle(QStringLiteral("Drag source"));
        setGeometry(100, 600, 200, 100);
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!event->buttons().testFlag(Qt::LeftButton) || m_dragged) {
            return;
        }
        m_dragged = true;
        QList<QUrl> urls;
        for (const auto& path : m_paths) {
            urls << QUrl::fromLocalFile(path);
        }
        auto* files = new QMimeData;
        files->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(files);
        const auto action = drag->exec(Qt::CopyAction | Qt::MoveAction);
        QTextStream(stdout) << "ended with action " << static_cast<int>(action) << Qt::endl;
    }

private:
    QStringList m_paths;
    bool m_dragged = false;
};

int main(int argc, char* argv[])
{
    const QGuiApplication app(argc, argv);
    DragSource source(QGuiApplication::arguments().sliced(1));
    source.show();
    return QGuiApplication::exec();
}
