#pragma once

#include "model/store.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The timer of a store as the notch shows it.
class RunningTimer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(QDateTime since READ since NOTIFY changed)
    Q_PROPERTY(QString clientName READ clientName NOTIFY changed)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }
    bool isRunning() const { return m_shown.isRunning; }
    QDateTime since() const { return m_shown.since; } ///< Invalid while no timer runs.
    /// "Timer" where the time belongs to no client, or to one that is gone.
    QString clientName() const { return m_shown.clientName; }

    /// Borrowed: nothing runs once the store is gone.
    void setStore(Store* store);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    struct Shown {
        bool isRunning = false;
        QDateTime since;
        QString clientName;

        bool operator==(const Shown&) const = default;
    };

    void follow();
    Shown wanted() const;

    QPointer<Store> m_store;
    Shown m_shown;
};

} // namespace quib
