#include "app/notch/tabs.h"

namespace quib {

QList<int> Tabs::all()
{
    QList<int> tabs;
    for (const auto tab : AllTabs) {
        tabs << static_cast<int>(tab);
    }
    return tabs;
}

} // namespace quib
