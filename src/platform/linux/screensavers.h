#pragma once

#include "platform/linux/sessionbus.h"

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QSet>

namespace quib {

/// Whether one of the desktops' screen savers covers the screen; most are lockers, or tell of them.
class ScreenSavers final : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit ScreenSavers(std::shared_ptr<SessionBus> bus);
    ~ScreenSavers() override;

    /// False until one has said so. One that has gone covers nothing.
    bool isActive() const { return !m_active.isEmpty(); }

Q_SIGNALS:
    void isActiveChanged();

private Q_SLOTS:
    void takeActive(bool isActive);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void enterBus();
    void leaveBus();
    void ask(const QString& name);
    void setActive(const QString& name, bool isActive);

    std::shared_ptr<SessionBus> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_owners; ///< Null without a bus.
    QSet<QString> m_active; ///< By the names on the bus.
};

} // namespace quib
