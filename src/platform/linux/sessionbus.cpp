#include "platform/linux/sessionbus.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto Variable = "DBUS_SESSION_BUS_ADDRESS";
constexpr auto NoAddress = "disabled:";
constexpr auto PatienceBeforeTheStart = 250ms; ///< A bus that is busy answers sooner.

QString addressOfTheSession()
{
    auto given = qEnvironmentVariable(Variable);
    const auto runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!given.isEmpty() || runtimeFolder.isEmpty()) {
        return given;
    }
    const GText path(
        g_dbus_address_escape_value((QFile::encodeName(runtimeFolder) + "/bus").constData()));
    return u"unix:path="_s + QString::fromLatin1(path.get());
}

/// Whoever looks from now on finds no bus. Before any thread runs that may look.
QString hiddenAddress()
{
    auto address = addressOfTheSession();
    qputenv(Variable, NoAddress);
    return address;
}

class HiddenBus final : public QObject {
public:
    HiddenBus() { qputenv(Variable, NoAddress); }
    ~HiddenBus() override { m_before.isNull() ? qunsetenv(Variable) : qputenv(Variable, m_before); }
    HiddenBus(const HiddenBus&) = delete;
    HiddenBus& operator=(const HiddenBus&) = delete;

private:
    QByteArray m_before = qgetenv(Variable);
};

} // namespace

std::unique_ptr<QObject> hideHungSessionBus()
{
    const bool isThere = answersWithin(PatienceBeforeTheStart, addressOfTheSession());
    return isThere ? nullptr : std::make_unique<HiddenBus>();
}

SessionBus::SessionBus()
    : Bus(hiddenAddress())
{
    connect(this, &SessionBus::connected, this,
            [this] { qputenv(Variable, address().toLatin1()); });
    connect(this, &SessionBus::lost, this, [] { qputenv(Variable, NoAddress); });
}

} // namespace quib
