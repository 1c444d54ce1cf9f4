#include "platform/linux/media/fakeplayer.h"

#include <QCoreApplication>
#include <QTextStream>

/// A player with the name of its argument, in a process of its own.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    FakePlayer player(QCoreApplication::arguments().at(1));
    if (!player.start()) {
        return 1;
    }
    QTextStream(stdout) << "owned" << Qt::endl;
    return QCoreApplication::exec();
}
