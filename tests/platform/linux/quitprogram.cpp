#include "platform/linux/quitsignals.h"

#include <QGuiApplication>
#include <QTextStream>
#include <QWindow>

/// A program with a window, that tells when it is about to quit.
int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    QTextStream out(stdout);
    const quib::QuitSignals signals_;
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     [&out] { out << "about to quit" << Qt::endl; });
    QWindow window;
    window.show();
    out << "running" << Qt::endl;
    const auto result = QGuiApplication::exec();
    out << "ended" << Qt::endl;
    return result;
}
