#pragma once

#include "app/shell/statusitem.h"
#include "platform/linux/base/sessionbus.h"
#include "platform/linux/statusitem/itemservice.h"
#include "platform/linux/statusitem/menuservice.h"

#include <memory>

class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

namespace quib {

/// An item as the StatusNotifierItem protocol has it, with its menu on the bus. Told to the
/// desktop's watcher whenever one appears, also on a bus that came back; none is ever started or
/// waited for.
class StatusNotifier final : public StatusItem {
    Q_OBJECT

public:
    explicit StatusNotifier(std::shared_ptr<SessionBus> bus);
    ~StatusNotifier() override;
    StatusNotifier(const StatusNotifier&) = delete;
    StatusNotifier& operator=(const StatusNotifier&) = delete;

    void install(const StatusIcon& icon) override;
    void setMenu(const QList<MenuItem>& menu) override { m_menu.setItems(menu); }
    bool isShown() const override { return m_isShown; }

private Q_SLOTS:
    void askForHost();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    using Answer = std::unique_ptr<QDBusPendingCallWatcher>;

    void enterBus();
    void leaveBus();
    void followWatcher();
    void changeWatcher(const QString& name, const QString& before, const QString& now);
    void tellWatcher();
    void takeAnswer();
    void setShown(bool isShown);

    std::shared_ptr<SessionBus> m_bus;
    MenuService m_menu;
    ItemService m_item;
    std::unique_ptr<QDBusServiceWatcher> m_watcher; ///< Null while there is no bus.
    Answer m_registration; ///< Of the watcher there is now.
    Answer m_hostAnswer;
    bool m_isInstalled = false;
    bool m_isShown = false;
};

} // namespace quib
