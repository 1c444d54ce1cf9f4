#pragma once

#include "platform/linux/base/sessionbus.h"

#include <QDBusReply>
#include <QStringList>
#include <QVariantMap>

namespace quib {

/// The object by which desktops and later starts reach the running program on the session bus.
class ActivationService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Answer {
        Ours, ///< The name is this process's.
        Taken, ///< Another process has it.
        NoBus,
    };

    explicit ActivationService(const SessionBus& bus);

    /// Waits for the bus, but not for ever.
    Answer claim(const QString& busName);
    /// The same without waiting: `claimed` tells.
    void startClaim(const QString& busName);
    /// Also takes calls to this name, if nobody has it, and until somebody claims it.
    void answerTo(const QString& busName);
    /// To the process that has the name. Waits for its answer, but not for ever.
    void activateOther(const QString& busName) const;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): slots are what the bus sees
    // NOLINTBEGIN(readability-identifier-naming): the names are the bus's
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                     const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    void activated();
    void pinAsked();
    /// The answer to a claim that did not wait. Nothing where the bus went meanwhile.
    void claimed(quib::ActivationService::Answer answer);

private:
    void offerObject(const QString& busName);
    Answer takeAnswer(const QString& busName, const QDBusReply<uint>& reply) const;

    const SessionBus& m_bus;
};

} // namespace quib
