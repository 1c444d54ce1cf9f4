// The status menu and what the views ask of the delegate.
#include "app/appdelegate.h"
#include "app/notchpanel.h"
#include "shortcuts/shortcuts.h"
#include "views/symbols/symbolimage.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

const auto OpenTitle = u"Open Quib"_s;
const auto PinTitle = u"Keep Open (Pin)"_s;
const auto LoginTitle = u"Launch at Login"_s;
const auto ShortcutsTitle = u"Edit Shortcuts…"_s;
const auto DataTitle = u"Show Data Folder"_s;
const auto QuitTitle = u"Quit Korvel Quib"_s;

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

void AppDelegate::setupStatusItem()
{
    auto& item = *m_platform.statusItem;
    connect(&item, &StatusItem::menuWillOpen, &m_menu, &StatusMenu::open);
    connect(&item, &StatusItem::chosen, &m_menu, &StatusMenu::choose);
    connect(&item, &StatusItem::pressed, this, &AppDelegate::activate);
    connect(&item, &StatusItem::isShownChanged, this, &Commands::isMenuInStatusBarChanged);
    connect(&m_menu, &QAbstractItemModel::modelReset, this, &AppDelegate::followMenu);
    connect(&m_menu, &QAbstractItemModel::dataChanged, this, &AppDelegate::followMenu);
    connect(&m_model, &NotchModel::isPinnedChanged, this,
            [this] { m_menu.setChecked(PinTitle, m_model.isPinned()); });
    item.install(statusIcon());
    rebuildMenu();
}

void AppDelegate::rebuildMenu()
{
    m_menu.setItems({{.title = OpenTitle},
                     {.title = PinTitle, .isCheckable = true},
                     {},
                     {.title = LoginTitle, .isCheckable = true},
                     {.title = ShortcutsTitle},
                     {.title = DataTitle},
                     {},
                     {.title = QuitTitle, .keyEquivalent = u"q"_s}});
    rebuildMenuStates(m_menu);
}

void AppDelegate::rebuildMenuStates(StatusMenu& menu) const
{
    menu.setChecked(PinTitle, m_model.isPinned());
    menu.setChecked(LoginTitle, m_platform.loginItem->isEnabled());
}

void AppDelegate::followMenu()
{
    m_platform.statusItem->setMenu(m_menu.items());
}

void AppDelegate::runCommand(const QString& title)
{
    if (title == OpenTitle) {
        activate();
    } else if (title == PinTitle) {
        togglePin();
    } else if (title == LoginTitle) {
        toggleLogin();
    } else if (title == ShortcutsTitle) {
        editShortcuts();
    } else if (title == DataTitle) {
        showData();
    } else if (title == QuitTitle) {
        quit();
    }
}

void AppDelegate::togglePin()
{
    m_model.setPinned(!m_model.isPinned());
    if (m_model.isPinned()) {
        expand(false);
    }
}

void AppDelegate::toggleLogin() const
{
    auto& item = *m_platform.loginItem;
    const bool isDone = item.isEnabled() ? item.disable() : item.enable();
    if (!isDone) {
        m_platform.desktop->beep();
    }
}

void AppDelegate::editShortcuts()
{
    Shortcuts::edit(
        [this](const std::filesystem::path& file) { m_platform.opener->openInTextEditor(file); });
}

void AppDelegate::showData() const
{
    m_platform.opener->openPath(Store::folder());
}

void AppDelegate::quit()
{
    QCoreApplication::exit(); // Not quit(), which a window can refuse.
}

void AppDelegate::pick(bool directories, const std::optional<QUrl>& startIn, Completion completion)
{
    m_model.holdOpen += 1;
    m_platform.panelHost->giveBackKeyboard(std::nullopt); // The dialog takes it next.
    const auto answer = [delegate = QPointer(this),
                         completion = std::move(completion)](const std::optional<QUrl>& chosen) {
        if (delegate) {
            delegate->m_model.holdOpen -= 1;
            delegate->checkHover();
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

QString AppDelegate::applicationName(const QString& path) const
{
    return m_platform.applications->nameOf(path);
}

bool AppDelegate::takeKeyboard()
{
    return m_platform.panelHost->takeKeyboard();
}

void AppDelegate::giveBackKeyboard()
{
    m_platform.panelHost->giveBackKeyboard(std::exchange(m_endingClick, std::nullopt));
}

void AppDelegate::dismiss()
{
    if (!isKeptOpen()) {
        cancelCollapse();
        m_model.setExpanded(false);
    }
}

bool AppDelegate::isMenuInStatusBar() const
{
    return m_platform.statusItem && m_platform.statusItem->isShown();
}

} // namespace quib
