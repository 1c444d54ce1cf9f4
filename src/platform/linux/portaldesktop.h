#pragma once

#include "app/notch/desktop.h"

#include <QDBusConnection>
#include <QDBusVariant>

namespace quib {

/// What the desktop says through its settings portal. The portal is never started by asking, and
/// asked again whenever it starts.
class PortalDesktop final : public Desktop {
    Q_OBJECT

public:
    explicit PortalDesktop(QDBusConnection bus);
    PortalDesktop();

    bool isMotionReduced() const override { return m_wantsLessMotion || !m_allowsAnimations; }
    QString fontFamily() const override;
    void beep() override;

Q_SIGNALS:
    /// The user's choice, each time that the desktop tells it.
    void iconThemeNamed(const QString& name);

private Q_SLOTS:
    void takeSetting(const QString& space, const QString& key, const QDBusVariant& value);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void readSettings();

    QDBusConnection m_bus;
    bool m_wantsLessMotion = false;
    bool m_allowsAnimations = true;
};

} // namespace quib
