#include "views/accessibility/accessiblefactory.h"

#include "views/accessibility/accessiblefield.h"
#include "views/accessibility/accessibleitem.h"
#include "views/accessibility/accessiblewindow.h"

namespace quib {

namespace {

QAccessibleInterface* tell(const QString& /*className*/, QObject* object)
{
    if (auto* window = qobject_cast<QQuickWindow*>(object)) {
        return new AccessibleWindow(*window);
    }
    auto* item = qobject_cast<QQuickItem*>(object);
    auto* attached = item ? AccessibleItem::attachedTo(*item) : nullptr;
    if (!attached) {
        return nullptr;
    }
    const bool isField = item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit");
    return isField ? new AccessibleField(*item, *attached) : new AccessibleItem(*item, *attached);
}

} // namespace

void installAccessibleFactory()
{
    QAccessible::installFactory(tell);
}

} // namespace quib
