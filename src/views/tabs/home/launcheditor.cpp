#include "views/tabs/home/launcheditor.h"

#include "views/tabs/home/launchlink.h"

namespace quib {

void LaunchEditor::setStore(Store* store)
{
    if (m_store != store) {
        m_store = store;
        Q_EMIT storeChanged();
    }
}

bool LaunchEditor::addLink(const QString& name, const QString& address)
{
    if (!m_store || address.isEmpty()) {
        return false;
    }
    m_store->addLaunchItem(
        {.id = QUuid::createUuid(), .name = linkName(name, address), .target = address});
    return true;
}

void LaunchEditor::addApplication(Commands* commands)
{
    const QPointer<Commands> shell(commands);
    commands->pick(false, std::nullopt, [shell, store = m_store](const QUrl& chosen) {
        const auto path = chosen.adjusted(QUrl::StripTrailingSlash).toLocalFile();
        if (shell && store && !path.isEmpty()) {
            store->addLaunchItem(
                {.id = QUuid::createUuid(), .name = shell->applicationName(path), .target = path});
        }
    });
}

} // namespace quib
