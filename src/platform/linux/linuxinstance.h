#pragma once

#include "app/notch/singleinstance.h"
#include "platform/linux/activationservice.h"
#include "platform/linux/instancelock.h"

namespace quib {

/// One running program for each data folder, by a name on the session bus and by a lock: the bus
/// reaches the desktop, the lock also holds where there is no bus, or no longer.
class LinuxInstance final : public SingleInstance {
    Q_OBJECT

public:
    LinuxInstance();
    explicit LinuxInstance(QDBusConnection bus);

    bool claim(const QString& dataFolder) override;

private:
    ActivationService m_service;
    std::unique_ptr<InstanceLock> m_lock;
};

} // namespace quib
