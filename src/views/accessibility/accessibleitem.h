#pragma once

#include <QAccessibleObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace quib {

/// What readers are told of an item by what QML attaches to it, but of controls by their own
/// properties `role`, `isCheckable` and `isChecked`: Qt 6.4 makes every template a button, Qt 6.10
/// one that can't be checked. Places are those where it is drawn, also at another scale, without
/// what lists and fields cut off, and what is scrolled away is not showing.
class AccessibleItem : public QAccessibleObject, public QAccessibleActionInterface {
public:
    /// Null for what nothing is attached to, and for what is ignored.
    static QObject* attachedTo(const QQuickItem& item);
    /// What is told of below an item, which may be told of itself or not.
    static QList<QAccessibleInterface*> childrenOf(const QQuickItem& item);
    /// What is told of the item of a window that has the keyboard; null where there is none.
    static QAccessibleInterface* focusIn(const QQuickWindow& window);
    /// The last of them that is shown there, so the one on top; null where there is none.
    static QAccessibleInterface* childAt(const QAccessibleInterface& parent, QPoint place);
    /// A part of a window in dots of the screen: Qt 6.4 hands on to readers what it is given.
    static QRect dots(const QWindow& window, const QRectF& part);

    AccessibleItem(QQuickItem& item, QObject& attached);

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QWindow* window() const override;

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text type, const QString& text) override;
    QRect rect() const override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

protected:
    QQuickItem& item() const { return static_cast<QQuickItem&>(*object()); }
    /// Of a part of the item, in dots of the screen.
    QRect globalRect(const QRectF& part) const;
    /// All of it, where it would be drawn if nothing were cut off.
    QRect wholeRect() const { return globalRect({0, 0, item().width(), item().height()}); }

private:
    bool is(const char* state) const;
    /// What a control says of itself, by its own name and by that of what is attached.
    QVariant told(const char* own, const char* attached) const;
    bool isCheckable() const { return told("isCheckable", "checkable").toBool(); }
    bool isPressable() const;

    QPointer<QObject> m_attached;
};

} // namespace quib
