#pragma once

#include <QObject>
#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The menu that is open. It is modal: there is one at most.
class OpenMenu : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QObject* menu READ menu WRITE setMenu NOTIFY menuChanged)

public:
    using QObject::QObject;

    QObject* menu() const { return m_menu; } ///< Borrowed; null where none is open.

    void setMenu(QObject* menu)
    {
        if (m_menu != menu) {
            m_menu = menu;
            Q_EMIT menuChanged();
        }
    }

Q_SIGNALS:
    void menuChanged();

private:
    QPointer<QObject> m_menu;
};

} // namespace quib
