#include "platform/linux/linuxinstance.h"

#include "platform/linux/instancename.h"

#include <utility>

namespace quib {

LinuxInstance::LinuxInstance(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
    , m_service(*m_bus)
{
    connect(&m_service, &ActivationService::activated, this, &LinuxInstance::activated);
}

bool LinuxInstance::claim(const QString& dataFolder)
{
    const auto name = instanceName(dataFolder);
    if (m_service.claim(name) == ActivationService::Answer::Taken) {
        m_service.activateOther(name);
        return false;
    }
    m_lock = std::make_unique<InstanceLock>(lockName(dataFolder));
    if (!m_lock->claim()) {
        m_lock->knock();
        return false;
    }
    connect(m_lock.get(), &InstanceLock::knocked, this, &LinuxInstance::activated);
    connect(m_bus.get(), &SessionBus::connected, this, [this, name] { m_service.reclaim(name); });
    return true;
}

} // namespace quib
