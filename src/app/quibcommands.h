#pragma once

#include "app/notch/notchmodel.h"
#include "app/shell/commands.h"
#include "app/shell/statusmenu.h"
#include "platform/platform.h"

#include <optional>
#include <span>

namespace quib {

class PanelLife;

/// The commands of the status menu, and what the views ask of the shell.
class QuibCommands : public Commands {
    Q_OBJECT

public:
    /// All are borrowed.
    QuibCommands(const Platform& platform, NotchModel& model, PanelLife& life);

    void setupStatusItem();
    void rebuildMenu();
    void rebuildMenuStates(StatusMenu& menu) const;
    void togglePin();
    void toggleLogin();
    void editShortcuts() override;
    void showData();
    void quit() override;

    void expand(bool toShelf) override;
    void dismiss() override;
    bool takeKeyboard() override;
    void giveBackKeyboard() override;
    void pick(bool directories, const std::optional<QUrl>& startIn, Completion completion) override;
    QString applicationName(const QString& path) const override;
    StatusMenu* menu() override { return &m_menu; }
    bool isMenuInStatusBar() const override;

private:
    struct Command {
        MenuItem item;
        void (QuibCommands::*run)() = nullptr; ///< Null for a separator.
    };

    static std::span<const Command> commands();
    void activate();
    void followMenu();
    void runCommand(const QString& title);

    const Platform& m_platform;
    NotchModel& m_model;
    PanelLife& m_life;
    StatusMenu m_menu;
};

} // namespace quib
