#include "views/accessibility/accessibleitem.h"

#include <QScreen>

namespace quib {

namespace {

/// Null for what is not told of, also where Qt keeps an interface of it from before it was ignored.
QAccessibleInterface* interfaceOf(QQuickItem& item)
{
    return AccessibleItem::attachedTo(item) ? QAccessible::queryAccessibleInterface(&item)
                                            : nullptr;
}

void collectChildren(const QQuickItem& item, QList<QAccessibleInterface*>& found)
{
    for (auto* child : item.childItems()) {
        if (auto* interface = interfaceOf(*child)) {
            found << interface;
        } else {
            collectChildren(*child, found);
        }
    }
}

QRectF sceneRect(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

/// What items that clip, and the window, leave of it to be seen.
QRectF partInSight(const QQuickItem& item)
{
    auto rect = sceneRect(item);
    for (const auto* above = item.parentItem(); above; above = above->parentItem()) {
        if (above->clip() || !above->parentItem()) {
            rect &= sceneRect(*above);
        }
    }
    return rect;
}

bool isControl(const QQuickItem& item)
{
    return item.inherits("QQuickAbstractButton");
}

} // namespace

QObject* AccessibleItem::attachedTo(const QQuickItem& item)
{
    for (auto* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached")) {
            return child->property("ignored").toBool() ? nullptr : child;
        }
    }
    return nullptr;
}

QList<QAccessibleInterface*> AccessibleItem::childrenOf(const QQuickItem& item)
{
    QList<QAccessibleInterface*> found;
    collectChildren(item, found);
    return found;
}

QAccessibleInterface* AccessibleItem::focusIn(const QQuickWindow& window)
{
    auto* focus = window.activeFocusItem();
    return focus ? interfaceOf(*focus) : nullptr;
}

QAccessibleInterface* AccessibleItem::childAt(const QAccessibleInterface& parent, QPoint place)
{
    for (int i = parent.childCount() - 1; i >= 0; --i) {
        auto* found = parent.child(i);
        if (found->rect().contains(place) && !found->state().invisible) {
            return found;
        }
    }
    return nullptr;
}

QRect AccessibleItem::dots(const QWindow& window, const QRectF& part)
{
    const QPointF origin = window.screen()->geometry().topLeft();
    const auto scale = window.devicePixelRatio();
    const auto topLeft = (window.mapToGlobal(part.topLeft()) - origin) * scale + origin;
    return QRectF(topLeft, part.size() * scale).toRect();
}

AccessibleItem::AccessibleItem(QQuickItem& item, QObject& attached)
    : QAccessibleObject(&item)
    , m_attached(&attached)
{
}

QAccessibleInterface* AccessibleItem::parent() const
{
    for (auto* above = item().parentItem(); above; above = above->parentItem()) {
        if (auto* interface = interfaceOf(*above)) {
            return interface;
        }
    }
    return QAccessible::queryAccessibleInterface(item().window());
}

int AccessibleItem::childCount() const
{
    return isControl(item()) ? 0 : static_cast<int>(childrenOf(item()).size());
}

QAccessibleInterface* AccessibleItem::child(int index) const
{
    return isControl(item()) ? nullptr : childrenOf(item()).value(index);
}

int AccessibleItem::indexOfChild(const QAccessibleInterface* child) const
{
    const auto children = childrenOf(item());
    return static_cast<int>(children.indexOf(const_cast<QAccessibleInterface*>(child)));
}

QAccessibleInterface* AccessibleItem::childAt(int x, int y) const
{
    return childAt(*this, {x, y});
}

QAccessibleInterface* AccessibleItem::focusChild() const
{
    auto* focus = item().window() ? item().window()->activeFocusItem() : nullptr;
    return focus && item().isAncestorOf(focus) ? interfaceOf(*focus) : nullptr;
}

QWindow* AccessibleItem::window() const
{
    return item().window();
}

QAccessible::Role AccessibleItem::role() const
{
    return static_cast<QAccessible::Role>(told("role", "role").toInt());
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state;
    state.checkable = isCheckable();
    state.checked = told("isChecked", "checked").toBool();
    state.selectable = is("selectable");
    state.selected = is("selected");
    state.editable = is("editable");
    state.readOnly = is("readOnly");
    state.multiLine = is("multiLine");
    state.pressed = is("pressed");
    state.disabled = !item().isEnabled();
    state.focused = item().window() && item().window()->activeFocusItem() == &item();
    state.focusable = is("focusable") || item().activeFocusOnTab() || state.focused;
    state.invisible = !item().isVisible() || !item().window() || !item().window()->isVisible();
    state.offscreen = partInSight(item()).isEmpty();
    return state;
}

QString AccessibleItem::text(QAccessible::Text type) const
{
    switch (type) {
    case QAccessible::Name: return m_attached->property("name").toString();
    case QAccessible::Description: return m_attached->property("description").toString();
    default: return {};
    }
}

void AccessibleItem::setText(QAccessible::Text /*type*/, const QString& /*text*/) { }

QRect AccessibleItem::rect() const
{
    const auto seen = partInSight(item());
    return seen.isEmpty() ? wholeRect() : globalRect(item().mapRectFromScene(seen));
}

void* AccessibleItem::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface && isPressable()
        ? static_cast<QAccessibleActionInterface*>(this)
        : nullptr;
}

QStringList AccessibleItem::actionNames() const
{
    return {isCheckable() ? toggleAction() : pressAction()};
}

void AccessibleItem::doAction(const QString& name)
{
    if (!item().isEnabled() || !actionNames().contains(name)) {
        return;
    }
    if (isControl(item())) {
        QMetaObject::invokeMethod(object(), "clicked");
    } else {
        QMetaObject::invokeMethod(m_attached, "pressAction");
    }
}

QStringList AccessibleItem::keyBindingsForAction(const QString& /*name*/) const
{
    return {};
}

QRect AccessibleItem::globalRect(const QRectF& part) const
{
    const auto* window = item().window();
    return window ? dots(*window, item().mapRectToScene(part)) : QRect();
}

bool AccessibleItem::is(const char* state) const
{
    return m_attached->property(state).toBool();
}

QVariant AccessibleItem::told(const char* own, const char* attached) const
{
    const auto value = isControl(item()) ? item().property(own) : QVariant();
    return value.isValid() ? value : m_attached->property(attached);
}

bool AccessibleItem::isPressable() const
{
    return isControl(item()) || is("focusable"); // As the tiles of a list.
}

} // namespace quib
