// A small window at the lower left of the screen from which the files named as arguments can be
// dragged, or the addresses in the text after "--addresses", as they stand there. It prints the
// action that the drag ended with.
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QTextStream>
#include <QUrl>

class DragSource : public QRasterWindow {
public:
    explicit DragSource(const QStringList& arguments)
        : m_arguments(arguments)
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
        auto* drag = new QDrag(this);
        drag->setMimeData(contents());
        const auto action = drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction);
        QTextStream(stdout) << "ended with action " << static_cast<int>(action) << Qt::endl;
    }

    void mousePressEvent(QMouseEvent* /*event*/) override { m_dragged = false; }

private:
    QMimeData* contents() const
    {
        auto* contents = new QMimeData; // Which the drag takes.
        if (m_arguments.value(0) == QLatin1String("--addresses")) {
            contents->setData(QStringLiteral("text/uri-list"), m_arguments.value(1).toLatin1());
            return contents;
        }
        QList<QUrl> urls;
        for (const auto& path : m_arguments) {
            urls << QUrl::fromLocalFile(path);
        }
        contents->setUrls(urls);
        return contents;
    }

    QStringList m_arguments;
    bool m_dragged = false;
};

int main(int argc, char* argv[])
{
    const QGuiApplication app(argc, argv);
    DragSource source(QGuiApplication::arguments().sliced(1));
    source.show();
    return QGuiApplication::exec();
}
