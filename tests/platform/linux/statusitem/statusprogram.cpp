#include "platform/linux/base/connectedbus.h"
#include "platform/linux/statusitem/statusfixture.h"
#include "platform/linux/statusitem/statusnotifier.h"

#include <QGuiApplication>
#include <QTextStream>

/// A program that shows a status item, tells its name on the bus, and quits by its menu.
int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const auto bus = connectedBus();
    quib::StatusNotifier item(bus);
    QObject::connect(&item, &quib::StatusItem::chosen, &application, &QCoreApplication::quit);
    item.install(quib::squareIcon());
    item.setMenu(quib::quibMenu());
    QTextStream(stdout) << bus->connection().baseService() << Qt::endl;
    return QCoreApplication::exec();
}
