#pragma once

#include "support/panel/shownpanel.h"

#include <functional>

/// The clients tab of a panel that has the keyboard, with two clients in it.
struct ClientBook : ShownPanel {
    QUuid cafe = workspace.client(QStringLiteral("Café"), quib::ClientStatus::Build);
    QUuid bloom = workspace.client(QStringLiteral("Bloom"), quib::ClientStatus::Live);

    ClientBook()
    {
        open(quib::Tab::Clients);
        takeKeyboard();
    }

    quib::Client client(const QUuid& id) const { return *store().client(id); }
    QUuid selection() const { return view()->property("selection").toUuid(); }
    void select(const QUuid& id) const { view()->setProperty("selection", id); }

    void change(const QUuid& id, const std::function<void(quib::Client&)>& edit) const
    {
        auto changed = client(id);
        edit(changed);
        store().updateClient(changed);
    }

    QQuickItem* row(int number) const { return rowOf(item(QStringLiteral("clientList")), number); }
    QQuickItem* part(int number, const QString& name) const { return find(row(number), name); }

    /// What takes the keys of a field.
    QQuickItem* input(const QString& field) const
    {
        return find(item(field), QStringLiteral("input"));
    }

private:
    QQuickItem* view() const { return item(QStringLiteral("clientsView")); }
};
