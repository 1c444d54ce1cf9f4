#include "platform/linux/base/sessionbus.h"

#include <QFile>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto Variable = "DBUS_SESSION_BUS_ADDRESS";
constexpr QByteArrayView NoAddress = "disabled:";
constexpr auto PatienceBeforeTheStart = 250ms; ///< A bus that is busy answers sooner.
constexpr auto PromptAnswer = 20ms; ///< Many times what one takes that has nothing else to do.

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

void hide()
{
    qputenv(Variable, NoAddress.toByteArray());
}

/// Whoever looks from now on finds no bus, or that one. Before any thread runs that may look.
QString addressIn(SessionBus::State state)
{
    auto address = addressOfTheSession();
    if (state == SessionBus::State::Unknown) {
        hide();
    } else {
        qputenv(Variable, address.toLatin1());
    }
    return address;
}

class HiddenBus final : public QObject {
public:
    HiddenBus() { hide(); }
    ~HiddenBus() override { m_before.isNull() ? qunsetenv(Variable) : qputenv(Variable, m_before); }
    HiddenBus(const HiddenBus&) = delete;
    HiddenBus& operator=(const HiddenBus&) = delete;

private:
    QByteArray m_before = qgetenv(Variable);
};

} // namespace

SessionBusAtStart lookAtSessionBus()
{
    const auto begin = std::chrono::steady_clock::now();
    const auto isThere = answersWithin(PatienceBeforeTheStart, addressOfTheSession());
    const auto answered = std::chrono::steady_clock::now() - begin;
    return {.isThere = isThere, .isPrompt = isThere && answered < PromptAnswer};
}

std::unique_ptr<QObject> hideSessionBus()
{
    return std::make_unique<HiddenBus>();
}

SessionBus::SessionBus(State state)
    : Bus(addressIn(state), state == State::Prompt ? Reach::Later : Reach::Now)
    , m_isShown(state == State::Prompt)
{
    connect(this, &SessionBus::connected, this,
            [this] { qputenv(Variable, address().toLatin1()); });
    connect(this, &SessionBus::lost, this, hide);
}

void SessionBus::reach()
{
    if (std::exchange(m_isShown, false)) {
        hide(); // It may have come to hang since.
    }
    Bus::reach();
}

} // namespace quib
