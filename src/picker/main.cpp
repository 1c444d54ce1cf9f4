#include "picker/choosing.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(u"org.korvel.Quib"_s);
    QGuiApplication::setApplicationDisplayName(u"Korvel Quib"_s);
    QCommandLineParser line;
    quib::addOptions(line);
    line.process(application);
    quib::choose(line);
    return 0;
}
