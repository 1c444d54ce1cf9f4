#pragma once

#include "platform/linux/base/sessionbus.h"

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QSet>

namespace quib {

/// Whether one of the desktops' screen savers covers the screen; most are lockers, or tell of them.
/// What others on the bus say of them does not count.
class ScreenSavers final : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit ScreenSavers(std::shared_ptr<SessionBus> bus);
    ~ScreenSavers() override;

    /// False until one has said so. One that has gone covers nothing; when it is the bus that has
    /// gone, that was the last word until there is one again.
    bool isActive() const { return !m_active.isEmpty(); }

Q_SIGNALS:
    void isActiveChanged();

private Q_SLOTS:
    void askAgain(bool isActive);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void enterBus();
    void followOwner(const QString& name, const QString& before, const QString& now);
    void ask(const QString& name);
    void setActive(const QString& name, bool isActive);

    std::shared_ptr<SessionBus> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_owners; ///< Null without a bus.
    QSet<QString> m_active; ///< By the names on the bus.
};

} // namespace quib
