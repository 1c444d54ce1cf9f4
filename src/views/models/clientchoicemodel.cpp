#include "views/models/clientchoicemodel.h"

#include <algorithm>

namespace quib {

namespace {

/// No client is the placeholder's and the separator's too.
auto keyOf(const ClientChoice& choice)
{
    return std::pair(choice.isSeparator, choice.clientID);
}

} // namespace

ClientChoiceModel::ClientChoiceModel(QObject* parent)
    : StoreListModel({&Store::clientsChanged}, parent)
{
    setRoles(m_choices,
             {{"title", &ClientChoice::title},
              {"checked", &ClientChoice::isChecked},
              {"separator", &ClientChoice::isSeparator}});
}

int ClientChoiceModel::selectedRow() const
{
    const auto found = std::ranges::find_if(m_choices, &ClientChoice::isChecked);
    return found == m_choices.end() ? 0 : static_cast<int>(found - m_choices.begin());
}

QUuid ClientChoiceModel::clientAt(int row) const
{
    return m_choices.value(row).clientID;
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

void ClientChoiceModel::follow()
{
    if (!m_isShown) {
        return;
    }
    show(m_choices, wanted(), keyOf);
    Q_EMIT choicesChanged();
}

QList<ClientChoice> ClientChoiceModel::wanted() const
{
    QList<ClientChoice> choices{{.title = m_placeholder}, {.isSeparator = true}};
    if (!store()) {
        return choices;
    }
    const auto chosen = clientOrNone(m_selection);
    for (const auto& client : store()->data().clients) {
        choices.append(
            {.clientID = client.id, .title = client.name, .isChecked = client.id == chosen});
    }
    choices.front().isChecked = !store()->client(chosen);
    return choices;
}

} // namespace quib
