#pragma once

#include "app/notch/statusitem.h"
#include "platform/linux/itemservice.h"
#include "platform/linux/menuservice.h"

#include <QDBusConnection>

#include <memory>

class QDBusPendingCallWatcher;

namespace quib {

/// An item as the StatusNotifierItem protocol has it, with its menu on the bus. Told to the
/// desktop's watcher whenever one appears; none is ever started or waited for.
class StatusNotifier final : public StatusItem {
    Q_OBJECT

public:
    /// On a connection that nobody else uses, closed at the end.
    explicit StatusNotifier(QDBusConnection bus);
    StatusNotifier();
    ~StatusNotifier() override;
    StatusNotifier(const StatusNotifier&) = delete;
    StatusNotifier& operator=(const StatusNotifier&) = delete;

    void install(const StatusIcon& icon) override;
    void setMenu(const QList<MenuItem>& menu) override { m_menu.setItems(menu); }
    bool isShown() const override { return m_isShown; }

private Q_SLOTS:
    void askForHost();
    void loseBus();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    using Answer = std::unique_ptr<QDBusPendingCallWatcher>;

    void followWatcher();
    void changeWatcher(const QString& name, const QString& before, const QString& now);
    void tellWatcher();
    void takeAnswer();
    void setShown(bool isShown);

    QDBusConnection m_bus;
    MenuService m_menu;
    ItemService m_item;
    Answer m_registration; ///< Of the watcher there is now.
    Answer m_hostAnswer;
    bool m_isShown = false;
};

} // namespace quib
