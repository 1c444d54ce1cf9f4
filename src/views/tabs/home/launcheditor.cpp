#include "views/tabs/home/launcheditor.h"

#include "views/tabs/home/launchlink.h"

#include <QPointer>

namespace quib {

bool LaunchEditor::addLink(Store* store, const QString& name, const QString& address)
{
    if (!store || address.isEmpty()) {
        return false;
    }
    store->addLaunchItem(
        {.id = QUuid::createUuid(), .name = linkName(name, address), .target = address});
    return true;
}

void LaunchEditor::addApplication(Store* store, Commands* commands)
{
    const auto add = [store = QPointer(store), shell = QPointer(commands)](const QUrl& chosen) {
        const auto path = chosen.adjusted(QUrl::StripTrailingSlash).toLocalFile();
        if (shell && store && !path.isEmpty()) {
            store->addLaunchItem(
                {.id = QUuid::createUuid(), .name = shell->applicationName(path), .target = path});
        }
    };
    commands->pick(false, std::nullopt, add);
}

} // namespace quib
