#pragma once

#include "app/shell/desktop.h"
#include "platform/linux/base/sessionbus.h"

#include <QDBusVariant>
#include <QMap>

class QDBusServiceWatcher;

namespace quib {

/// What the desktop says through its settings portal. The portal is never started by asking, and
/// asked again whenever it starts. Without a bus what it said last stands.
class PortalDesktop final : public Desktop {
    Q_OBJECT

public:
    explicit PortalDesktop(std::shared_ptr<SessionBus> bus);
    ~PortalDesktop() override;
    PortalDesktop(const PortalDesktop&) = delete;
    PortalDesktop& operator=(const PortalDesktop&) = delete;

    bool isMotionReduced() const override { return m_wantsLessMotion || !m_allowsAnimations; }
    QString fontFamily() const override;
    void beep() override;

Q_SIGNALS:
    /// The user's choice, each time that the desktop tells it.
    void iconThemeNamed(const QString& name);

private Q_SLOTS:
    void takeSetting(const QString& space, const QString& key, const QDBusVariant& value);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void followPortal();
    void readSettings();
    void takeSettings(const QMap<QString, QVariantMap>& settings);

    std::shared_ptr<SessionBus> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_portal; ///< Null while there is no bus.
    bool m_wantsLessMotion = false;
    bool m_allowsAnimations = true;
};

} // namespace quib
