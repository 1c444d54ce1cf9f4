#pragma once

#include <QPointer>
#include <QQuickItem>

#include <qqmlintegration.h>

namespace quib {

/// Whether the keyboard brought the focus to an item, as a control knows it of itself. A press ends
/// it; a menu or another window that had the focus meanwhile does not.
class KeyboardFocus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)

public:
    using QObject::QObject;

    QQuickItem* item() const { return m_item; }
    bool isShown() const { return m_isShown; }

    void setItem(QQuickItem* item);
    /// To be told why the item has the focus where it had it before, as one that a list gives it
    /// to.
    Q_INVOKABLE void take(Qt::FocusReason reason);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void itemChanged();
    void isShownChanged();

private:
    void comeBy(Qt::FocusReason reason);
    void show(bool isShown);

    QPointer<QQuickItem> m_item;
    bool m_cameByKey = false;
    bool m_isUnderPopup = false;
    bool m_isShown = false;
};

} // namespace quib
