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

QUuid idOf(const ShortcutButton& button)
{
    return QUuid::createUuidV5({}, button.name + QChar(QChar::Null) + button.url);
}

} // namespace

void ShortcutButtonModel::setGroup(const ShortcutGroup& group)
{
    if (m_group == group) {
        return;
    }
    m_group = group;
    QList<ButtonRecord> records;
    for (const auto& button : group.buttons) {
        records.append({.id = idOf(button), .button = button});
    }
    show(m_buttons, records);
    Q_EMIT groupChanged();
}

int ShortcutButtonModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_buttons.size());
}

QVariant ShortcutButtonModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& button = m_buttons.at(index.row()).button;
    switch (role) {
    case NameRole: return button.name;
    case SymbolRole: return symbolOf(button);
    case ApplicationRole: return applicationOf(button);
    case UrlRole: return button.url;
    }
    return {};
}

QHash<int, QByteArray> ShortcutButtonModel::roleNames() const
{
    return {{NameRole, "name"},
            {SymbolRole, "symbol"},
            {ApplicationRole, "application"},
            {UrlRole, "url"}};
}

} // namespace quib
