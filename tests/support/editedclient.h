#pragma once

#include "support/fakes/fakecommands.h"
#include "support/workspace.h"
#include "views/tabs/clients/clienteditor.h"

#include <functional>
#include <memory>

/// The editor of the first of two clients.
struct EditedClient {
    FakeCommands commands;
    std::unique_ptr<Workspace> workspace = std::make_unique<Workspace>();
    QUuid cafe = workspace->client(QStringLiteral("Café"), quib::ClientStatus::Build);
    QUuid bloom = workspace->client(QStringLiteral("Bloom"));
    std::unique_ptr<quib::ClientEditor> editor = std::make_unique<quib::ClientEditor>();

    EditedClient()
    {
        editor->setStore(workspace->store.get());
        editor->setClientID(cafe);
    }

    quib::Client first() const { return workspace->store->data().clients.front(); }

    void change(const QUuid& id, const std::function<void(quib::Client&)>& edit) const
    {
        auto client = *workspace->store->client(id);
        edit(client);
        workspace->store->updateClient(client);
    }
};
