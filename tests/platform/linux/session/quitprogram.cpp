#include "platform/linux/session/quitsignals.h"
#include "platform/linux/x11/xcbpointersource.h"

#include <QGuiApplication>
#include <QTextStream>
#include <QWindow>

/// A program with a window, that tells when it is about to quit.
int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    QTextStream out(stdout);
    const quib::QuitSignals quitSignals;
    const quib::XcbPointerSource pointer;
    const auto position = pointer.state().position;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, [&] {
        const auto isLost = pointer.state().position != position; // Also when the server is gone.
        out << (isLost ? "pointer lost" : "about to quit") << Qt::endl;
    });
    QWindow window;
    window.show();
    out << "running" << Qt::endl;
    const auto result = QGuiApplication::exec();
    out << "ended" << Qt::endl;
    return result;
}
