#include "views/models/shortcutbuttonmodel.h"

#include "integrations/opening/actions.h"
#include "views/symbols/symbollibrary.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// The application that a button leads to, if it has no icon of its own; else empty.
QString applicationOf(const ShortcutButton& button)
{
    const auto path = button.icon ? QString() : pathOf(button.url, QDir::homePath());
    return path.endsWith(".app"_L1) || path.endsWith(".desktop"_L1) ? path : QString();
}

/// Empty where the picture of an application stands.
QString symbolOf(const ShortcutButton& button)
{
    if (button.icon && findSymbol(*button.icon)) {
        return *button.icon;
    }
    return applicationOf(button).isEmpty() ? u"globe"_s : QString();
}

auto keyOf(const ShortcutButton& button)
{
    return std::pair(button.name, button.url);
}

} // namespace

ShortcutButtonModel::ShortcutButtonModel(QObject* parent)
    : RecordListModel(parent)
{
    setRoles(m_buttons,
             {{"name", &ShortcutButton::name},
              {"symbol", symbolOf},
              {"application", applicationOf},
              {"url", &ShortcutButton::url}});
}

void ShortcutButtonModel::setGroup(const ShortcutGroup& group)
{
    if (m_group == group) {
        return;
    }
    m_group = group;
    show(m_buttons, group.buttons, keyOf);
    Q_EMIT groupChanged();
}

} // namespace quib
