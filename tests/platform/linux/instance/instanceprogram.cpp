#include "platform/linux/instance/linuxinstance.h"

#include <QCoreApplication>
#include <QTextStream>

/// A program that keeps to one instance for the folder of its argument, and tells what happens.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    quib::LinuxInstance instance(std::make_shared<quib::SessionBus>());
    QObject::connect(&instance, &quib::SingleInstance::activated,
                     [&out] { out << "activated" << Qt::endl; });
    QObject::connect(&instance, &quib::SingleInstance::superseded,
                     [&out] { out << "superseded" << Qt::endl; });
    QObject::connect(&instance, &quib::SingleInstance::pinAsked,
                     [&out] { out << "pin asked" << Qt::endl; });
    if (!instance.claim(argv[1])) {
        out << "refused" << Qt::endl;
        return 0;
    }
    out << "alone" << Qt::endl;
    return QCoreApplication::exec();
}
