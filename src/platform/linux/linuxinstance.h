#pragma once

#include "app/notch/singleinstance.h"
#include "platform/linux/activationservice.h"
#include "platform/linux/instancelock.h"

namespace quib {

/// One running program for each data folder, by a name on the session bus and by a lock: the bus
/// reaches the desktop, the lock also holds where there is no bus, or no longer. On a bus that
/// comes later the name is taken then.
class LinuxInstance final : public SingleInstance {
    Q_OBJECT

public:
    explicit LinuxInstance(std::shared_ptr<SessionBus> bus = std::make_shared<SessionBus>());

    bool claim(const QString& dataFolder) override;

private:
    std::shared_ptr<SessionBus> m_bus;
    ActivationService m_service;
    std::unique_ptr<InstanceLock> m_lock;
};

} // namespace quib
