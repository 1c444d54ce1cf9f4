#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// Answers every call, and says what was called.
class Service final : public QDBusVirtualObject {
public:
    explicit Service(bool refuses)
        : m_refuses(refuses)
    {
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        QTextStream(stdout) << message.interface() << u'.' << message.member() << u' '
                            << message.path() << u' '
                            << message.arguments().value(0).toStringList().join(u' ') << Qt::endl;
        connection.send(m_refuses ? message.createErrorReply(QDBusError::AccessDenied, u"No"_s)
                                  : message.createReply());
        return true;
    }

private:
    bool m_refuses;
};

} // namespace

/// Owns the name of its argument on the session bus. With a second argument it refuses every call.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    Service service(arguments.size() > 2);
    auto bus = QDBusConnection::sessionBus();
    bus.registerVirtualObject(u"/"_s, &service, QDBusConnection::SubPath);
    if (!bus.registerService(arguments.at(1))) {
        return 1;
    }
    QTextStream(stdout) << "owned" << Qt::endl;
    return QCoreApplication::exec();
}
