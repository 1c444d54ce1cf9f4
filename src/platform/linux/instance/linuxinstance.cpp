#include "platform/linux/instance/linuxinstance.h"

#include "platform/linux/base/log.h"
#include "platform/linux/instance/instancename.h"

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto PatienceWithoutALock = 1s;

/// By the name in the desktop's entry, whatever folder is used: whoever asked waits for that name.
bool wasStartedByBus()
{
    return qEnvironmentVariableIsSet("DBUS_STARTER_BUS_TYPE");
}

} // namespace

LinuxInstance::LinuxInstance(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
    , m_service(*m_bus)
{
    connect(&m_service, &ActivationService::activated, this, &LinuxInstance::activated);
    connect(&m_service, &ActivationService::pinAsked, this, &LinuxInstance::pinAsked);
    connect(&m_service, &ActivationService::claimed, this, &LinuxInstance::takeAnswer);
}

bool LinuxInstance::claim(const std::filesystem::path& dataFolder)
{
    m_name = instanceName(dataFolder);
    m_lock = std::make_unique<InstanceLock>(lockName(dataFolder));
    if (!m_lock->claim()) {
        qCDebug(instanceLog) << "another one holds the lock";
        m_lock->knock(wasStartedByBus() ? InstanceLock::Knock::Desktop : InstanceLock::Knock::Open);
        return false;
    }
    if (!m_lock->isHeld() && !claimByNameAlone()) {
        return false;
    }
    connect(m_lock.get(), &InstanceLock::knocked, this, &LinuxInstance::takeKnock);
    connect(m_bus.get(), &SessionBus::connected, this, &LinuxInstance::takeName);
    if (m_bus->isConnected()) {
        takeName();
    }
    return true;
}

bool LinuxInstance::claimByNameAlone()
{
    m_bus->wait(PatienceWithoutALock);
    if (m_service.claim(m_name) != ActivationService::Answer::Taken) {
        return true;
    }
    m_service.activateOther(m_name);
    return false;
}

void LinuxInstance::takeName()
{
    m_service.startClaim(m_name);
    if (wasStartedByBus() && m_name != ApplicationName) {
        m_service.answerTo(ApplicationName);
    }
}

void LinuxInstance::takeKnock(InstanceLock::Knock knock)
{
    if (knock == InstanceLock::Knock::Desktop && m_name != ApplicationName
        && m_bus->isConnected()) {
        m_service.answerTo(ApplicationName); // The bus tells what is wanted.
    } else {
        Q_EMIT activated();
    }
}

void LinuxInstance::takeAnswer(ActivationService::Answer answer)
{
    const bool isFirst = !std::exchange(m_isAnswered, true);
    if (isFirst && answer == ActivationService::Answer::Taken) {
        m_service.activateOther(m_name);
        Q_EMIT superseded();
    }
}

} // namespace quib
