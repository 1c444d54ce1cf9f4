#pragma once

#include <QAccessibleObject>
#include <QQuickWindow>

namespace quib {

/// What readers are told of a window of items: Qt 6.4 forgets the scale in its place.
class AccessibleWindow final : public QAccessibleObject {
public:
    explicit AccessibleWindow(QQuickWindow& window);

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
    QRect rect() const override;

private:
    QQuickWindow& shown() const { return static_cast<QQuickWindow&>(*object()); }
    QList<QAccessibleInterface*> children() const;
};

} // namespace quib
