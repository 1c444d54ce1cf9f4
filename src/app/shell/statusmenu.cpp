#include "app/shell/statusmenu.h"

#include <algorithm>
#include <iterator>

namespace quib {

void StatusMenu::setItems(const QList<MenuItem>& items)
{
    beginResetModel();
    m_items = items;
    endResetModel();
}

void StatusMenu::setChecked(const QString& title, bool checked)
{
    const auto found = std::ranges::find(m_items, title, &MenuItem::title);
    if (found == m_items.end() || found->isChecked == checked) {
        return;
    }
    found->isChecked = checked;
    const auto row = index(static_cast<int>(std::distance(m_items.begin(), found)));
    Q_EMIT dataChanged(row, row, {CheckedRole});
}

void StatusMenu::choose(int row)
{
    const auto title = m_items.value(row).title;
    if (!title.isEmpty()) {
        Q_EMIT chosen(title);
    }
}

int StatusMenu::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant StatusMenu::data(const QModelIndex& index, int role) const
{
    const auto item = m_items.value(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole: return item.title;
    case CheckedRole: return item.isChecked;
    case SeparatorRole: return item.isSeparator();
    default: return {};
    }
}

QHash<int, QByteArray> StatusMenu::roleNames() const
{
    return {{TitleRole, "title"}, {CheckedRole, "checked"}, {SeparatorRole, "separator"}};
}

} // namespace quib
