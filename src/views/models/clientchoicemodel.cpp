#include "views/models/clientchoicemodel.h"

#include "views/core/followsource.h"

#include <algorithm>

namespace quib {

namespace {

// No client of a workspace bears these.
constexpr QUuid PlaceholderID(0x5e1ec7ed, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
constexpr QUuid SeparatorID(0x5e1ec7ed, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2);

} // namespace

int ClientChoiceModel::selectedRow() const
{
    const auto found = std::ranges::find_if(m_choices, &ClientChoice::isChecked);
    return found == m_choices.end() ? 0 : static_cast<int>(found - m_choices.begin());
}

QUuid ClientChoiceModel::clientAt(int row) const
{
    return m_choices.value(row).clientID;
}

void ClientChoiceModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &ClientChoiceModel::follow, &Store::clientsChanged)) {
        Q_EMIT storeChanged();
    }
}

void ClientChoiceModel::setShown(bool isShown)
{
    if (m_isShown == isShown) {
        return;
    }
    m_isShown = isShown;
    follow();
    Q_EMIT shownChanged();
}

void ClientChoiceModel::setPlaceholder(const QString& placeholder)
{
    if (m_placeholder == placeholder) {
        return;
    }
    m_placeholder = placeholder;
    follow();
    Q_EMIT placeholderChanged();
}

void ClientChoiceModel::setSelection(const QUuid& selection)
{
    if (m_selection == selection) {
        return;
    }
    m_selection = selection;
    follow();
    Q_EMIT selectionChanged();
}

int ClientChoiceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_choices.size());
}

QVariant ClientChoiceModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& choice = m_choices.at(index.row());
    switch (role) {
    case TitleRole: return choice.title;
    case CheckedRole: return choice.isChecked;
    case SeparatorRole: return choice.isSeparator;
    }
    return {};
}

QHash<int, QByteArray> ClientChoiceModel::roleNames() const
{
    return {{TitleRole, "title"}, {CheckedRole, "checked"}, {SeparatorRole, "separator"}};
}

void ClientChoiceModel::follow()
{
    if (!m_isShown) {
        return;
    }
    show(m_choices, wanted());
    Q_EMIT choicesChanged();
}

QList<ClientChoice> ClientChoiceModel::wanted() const
{
    QList<ClientChoice> choices{{.id = PlaceholderID, .title = m_placeholder},
                                {.id = SeparatorID, .isSeparator = true}};
    if (!m_store) {
        return choices;
    }
    const auto chosen = clientOrNone(m_selection);
    for (const auto& client : m_store->data().clients) {
        choices.append({.id = client.id,
                        .clientID = client.id,
                        .title = client.name,
                        .isChecked = client.id == chosen});
    }
    choices.front().isChecked = !m_store->client(chosen);
    return choices;
}

} // namespace quib
