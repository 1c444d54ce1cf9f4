#include "views/shapes/unseen.h"

#include "views/shapes/rasteritem.h"

namespace quib {

void Unseen::letGo(QQuickItem* view)
{
    if (auto* item = qobject_cast<RasterItem*>(view)) {
        item->letGo();
    }
    for (auto* child : view->childItems()) {
        letGo(child);
    }
}

} // namespace quib
