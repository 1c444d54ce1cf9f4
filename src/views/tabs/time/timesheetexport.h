#pragma once

#include "model/store.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// Writes the timesheet of a store on demand, and remembers that it did.
class TimesheetExport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(QUrl exported READ exported NOTIFY exportedChanged)
    Q_PROPERTY(bool hasExported READ hasExported NOTIFY exportedChanged)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }
    QUrl exported() const { return m_exported; } ///< The last one's file; empty before the first.
    bool hasExported() const { return !m_exported.isEmpty(); }

    /// Borrowed: nothing is written once the store is gone.
    void setStore(Store* store);
    /// Nothing changes and nothing is said when it cannot be written.
    Q_INVOKABLE void write();
    Q_INVOKABLE void forget();

Q_SIGNALS:
    void storeChanged();
    void exportedChanged();
    void written(const QString& path);

private:
    void setExported(const QUrl& file);

    QPointer<Store> m_store;
    QUrl m_exported;
};

} // namespace quib
