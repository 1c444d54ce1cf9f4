#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QTextStream>

using namespace Qt::StringLiterals;

/// A desktop's watcher of status items, which tells what happens.
class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    Watcher()
    {
        m_hostWatcher.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
        m_hostWatcher.setConnection(QDBusConnection::sessionBus());
        connect(&m_hostWatcher, &QDBusServiceWatcher::serviceUnregistered, this,
                [this](const QString& host) {
                    m_hosts.removeAll(host);
                    Q_EMIT StatusNotifierHostUnregistered();
                });
    }

    bool hasHost() const
    {
        QTextStream(stdout) << "asked" << Qt::endl;
        return !m_hosts.isEmpty();
    }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& item)
    {
        QTextStream(stdout) << "registered " << item << Qt::endl;
    }

    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString& host)
    {
        m_hosts.append(host);
        m_hostWatcher.addWatchedService(host);
        Q_EMIT StatusNotifierHostRegistered();
    }

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    Q_SCRIPTABLE void StatusNotifierHostUnregistered();

private:
    QStringList m_hosts;
    QDBusServiceWatcher m_hostWatcher;
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    auto bus = QDBusConnection::sessionBus();
    Watcher watcher;
    bus.registerObject(u"/StatusNotifierWatcher"_s, &watcher,
                       QDBusConnection::ExportScriptableContents);
    bus.interface()->registerService(u"org.kde.StatusNotifierWatcher"_s,
                                     QDBusConnectionInterface::ReplaceExistingService,
                                     QDBusConnectionInterface::AllowReplacement);
    QTextStream(stdout) << "ready" << Qt::endl;
    return QCoreApplication::exec();
}

#include "watcherprogram.moc"
