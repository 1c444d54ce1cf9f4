#include "views/accessibility/accessiblewindow.h"

#include "views/accessibility/accessibleitem.h"

#include <QCoreApplication>

namespace quib {

AccessibleWindow::AccessibleWindow(QQuickWindow& window)
    : QAccessibleObject(&window)
{
}

QAccessibleInterface* AccessibleWindow::parent() const
{
    return QAccessible::queryAccessibleInterface(qApp);
}

int AccessibleWindow::childCount() const
{
    return static_cast<int>(children().size());
}

QAccessibleInterface* AccessibleWindow::child(int index) const
{
    return children().value(index);
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface* child) const
{
    return static_cast<int>(children().indexOf(const_cast<QAccessibleInterface*>(child)));
}

QAccessibleInterface* AccessibleWindow::childAt(int x, int y) const
{
    return AccessibleItem::childAt(*this, {x, y});
}

QAccessibleInterface* AccessibleWindow::focusChild() const
{
    return AccessibleItem::focusIn(shown());
}

QWindow* AccessibleWindow::window() const
{
    return &shown();
}

QAccessible::Role AccessibleWindow::role() const
{
    return QAccessible::Window;
}

QAccessible::State AccessibleWindow::state() const
{
    QAccessible::State state;
    state.active = shown().isActive();
    state.invisible = !shown().isVisible();
    return state;
}

QString AccessibleWindow::text(QAccessible::Text type) const
{
    return type == QAccessible::Name ? shown().title() : QString();
}

QRect AccessibleWindow::rect() const
{
    return AccessibleItem::dots(shown(), QRectF(QPointF(), shown().size()));
}

QList<QAccessibleInterface*> AccessibleWindow::children() const
{
    return AccessibleItem::childrenOf(*shown().contentItem());
}

} // namespace quib
