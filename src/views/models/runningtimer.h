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
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(QDateTime since READ since NOTIFY changed)
    Q_PROPERTY(QString clientName READ clientName NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }
    /// Stands for the client where the time belongs to none, or to one that is gone.
    QString placeholder() const { return m_placeholder; }
    bool isRunning() const { return m_shown.isRunning; }
    QDateTime since() const { return m_shown.since; } ///< Invalid while no timer runs.
    QString clientName() const { return m_shown.clientName; }
    QString note() const { return m_shown.note; }

    /// Borrowed: nothing runs once the store is gone.
    void setStore(Store* store);
    void setPlaceholder(const QString& placeholder);

Q_SIGNALS:
    void storeChanged();
    void placeholderChanged();
    void changed();

private:
    struct Shown {
        bool isRunning = false;
        QDateTime since;
        QString clientName;
        QString note;

        bool operator==(const Shown&) const = default;
    };

    void follow();
    Shown wanted() const;

    QPointer<Store> m_store;
    QString m_placeholder = QStringLiteral("Timer");
    Shown m_shown;
};

} // namespace quib
