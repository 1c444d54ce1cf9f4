#include "app/quibcommands.h"

#include "app/panellife.h"
#include "model/store.h"
#include "shortcuts/shortcuts.h"
#include "views/symbols/symbolimage.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

const auto PinTitle = u"Keep Open (Pin)"_s;
const auto LoginTitle = u"Launch at Login"_s;

StatusIcon statusIcon()
{
    StatusIcon icon{.images = {}, .accessibleName = u"Korvel Quib"_s};
    for (const auto size : {16, 22, 24, 32, 48}) {
        icon.images << symbolImage(
            {.name = u"circle.hexagongrid.fill"_s, .size = double(size), .color = Qt::black}, 1);
    }
    return icon;
}

} // namespace

QuibCommands::QuibCommands(const Platform& platform, NotchModel& model, PanelLife& life)
    : m_platform(platform)
    , m_model(model)
    , m_life(life)
{
    connect(&m_menu, &StatusMenu::aboutToOpen, this, [this] { rebuildMenuStates(m_menu); });
    connect(&m_menu, &StatusMenu::chosen, this, &QuibCommands::runCommand);
    connect(&m_life, &PanelLife::clickedElsewhere, this, &Commands::clickedElsewhere);
}

/// As they stand in the menu.
std::span<const QuibCommands::Command> QuibCommands::commands()
{
    static const std::array<Command, 8> commands{{
        {{.title = u"Open Quib"_s}, &QuibCommands::activate},
        {{.title = PinTitle, .isCheckable = true}, &QuibCommands::togglePin},
        {},
        {{.title = LoginTitle, .isCheckable = true}, &QuibCommands::toggleLogin},
        {{.title = u"Edit Shortcuts…"_s}, &QuibCommands::editShortcuts},
        {{.title = u"Show Data Folder"_s}, &QuibCommands::showData},
        {},
        {{.title = u"Quit Korvel Quib"_s, .keyEquivalent = u"q"_s}, &QuibCommands::quit},
    }};
    return commands;
}

void QuibCommands::setupStatusItem()
{
    auto& item = *m_platform.statusItem;
    connect(&item, &StatusItem::menuWillOpen, &m_menu, &StatusMenu::open);
    connect(&item, &StatusItem::chosen, &m_menu, &StatusMenu::choose);
    connect(&item, &StatusItem::pressed, this, &QuibCommands::activate);
    connect(&item, &StatusItem::isShownChanged, this, &Commands::isMenuInStatusBarChanged);
    connect(&m_menu, &QAbstractItemModel::modelReset, this, &QuibCommands::followMenu);
    connect(&m_menu, &QAbstractItemModel::dataChanged, this, &QuibCommands::followMenu);
    connect(&m_model, &NotchModel::isPinnedChanged, this,
            [this] { m_menu.setChecked(PinTitle, m_model.isPinned()); });
    item.install(statusIcon());
    rebuildMenu();
}

void QuibCommands::rebuildMenu()
{
    QList<MenuItem> items;
    std::ranges::transform(commands(), std::back_inserter(items), &Command::item);
    m_menu.setItems(items);
    rebuildMenuStates(m_menu);
}

void QuibCommands::rebuildMenuStates(StatusMenu& menu) const
{
    menu.setChecked(PinTitle, m_model.isPinned());
    menu.setChecked(LoginTitle, m_platform.loginItem->isEnabled());
}

void QuibCommands::togglePin()
{
    m_model.setPinned(!m_model.isPinned());
    if (m_model.isPinned()) {
        m_life.expand(false);
    }
}

void QuibCommands::toggleLogin()
{
    auto& item = *m_platform.loginItem;
    const bool isDone = item.isEnabled() ? item.disable() : item.enable();
    if (!isDone) {
        m_platform.desktop->beep();
    }
}

void QuibCommands::editShortcuts()
{
    Shortcuts::edit(
        [this](const std::filesystem::path& file) { m_platform.opener->openInTextEditor(file); });
}

void QuibCommands::showData()
{
    m_platform.opener->openPath(Store::folder());
}

void QuibCommands::quit()
{
    QCoreApplication::exit(); // Not quit(), which a window can refuse.
}

void QuibCommands::expand(bool toShelf)
{
    m_life.expand(toShelf);
}

void QuibCommands::dismiss()
{
    m_life.dismiss();
}

bool QuibCommands::takeKeyboard()
{
    return m_platform.panelHost->takeKeyboard();
}

void QuibCommands::giveBackKeyboard()
{
    m_life.giveBackKeyboard();
}

void QuibCommands::pick(bool directories, const std::optional<QUrl>& startIn, Completion completion)
{
    m_model.holdOpen += 1;
    m_platform.panelHost->giveBackKeyboard(std::nullopt); // The dialog takes it next.
    const auto answer = [commands = QPointer(this),
                         completion = std::move(completion)](const std::optional<QUrl>& chosen) {
        if (commands) {
            commands->m_model.holdOpen -= 1;
            commands->m_life.checkHover();
        }
        if (chosen) {
            completion(*chosen);
        }
    };
    if (directories) {
        m_platform.filePicker->chooseFolder(startIn, answer);
    } else {
        m_platform.filePicker->chooseApplication(answer);
    }
}

QString QuibCommands::applicationName(const QString& path) const
{
    return m_platform.applications->nameOf(path);
}

bool QuibCommands::isMenuInStatusBar() const
{
    return m_platform.statusItem && m_platform.statusItem->isShown();
}

void QuibCommands::activate()
{
    m_life.activate();
}

void QuibCommands::followMenu()
{
    m_platform.statusItem->setMenu(m_menu.items());
}

void QuibCommands::runCommand(const QString& title)
{
    for (const auto& command : commands()) {
        if (command.run != nullptr && command.item.title == title) {
            (this->*command.run)();
        }
    }
}

} // namespace quib
