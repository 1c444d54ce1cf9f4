#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace quib {

/// Which icon theme the user has chosen, as the settings portal says. The portal is never started
/// by asking, and asked again whenever it starts.
class IconThemeChoice final : public QObject {
    Q_OBJECT

public:
    explicit IconThemeChoice(QDBusConnection bus, QObject* parent = nullptr);

Q_SIGNALS:
    void told(const QString& theme);

private Q_SLOTS:
    void takeSetting(const QString& space, const QString& key, const QDBusVariant& value);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void ask();

    QDBusConnection m_bus;
};

} // namespace quib
