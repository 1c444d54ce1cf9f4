#pragma once

#include "app/shell/singleinstance.h"
#include "platform/linux/instance/activationservice.h"
#include "platform/linux/instance/instancelock.h"

namespace quib {

/// One running program for each data folder, by a lock and by a name on the session bus: the lock
/// answers at once and needs no bus, the name reaches the desktop and whoever has another folder
/// for locks. It is taken when the bus answers, and again on one that comes back.
class LinuxInstance final : public SingleInstance {
    Q_OBJECT

public:
    explicit LinuxInstance(std::shared_ptr<SessionBus> bus);

    bool claim(const std::filesystem::path& dataFolder) override;

private:
    bool claimByNameAlone();
    void takeName();
    void takeKnock(InstanceLock::Knock knock);
    void takeAnswer(ActivationService::Answer answer);

    std::shared_ptr<SessionBus> m_bus;
    ActivationService m_service;
    QString m_name; ///< On the bus.
    std::unique_ptr<InstanceLock> m_lock;
    bool m_isAnswered = false; ///< By the first bus that was there.
};

} // namespace quib
