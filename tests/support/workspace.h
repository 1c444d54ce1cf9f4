#pragma once

#include "model/store.h"
#include "model/time/utc.h"

#include <QTemporaryDir>

/// A store in a folder of its own, empty unless a test fills it.
struct Workspace {
    QTemporaryDir folder;
    std::unique_ptr<quib::Store> store;

    explicit Workspace(const quib::QuibData& data = {}, quib::Store::Surroundings around = {})
    {
        qputenv("QUIB_DATA_DIR", folder.path().toLocal8Bit());
        store = std::make_unique<quib::Store>(std::move(around));
        store->setData(data);
    }

    /// A new client, appended.
    QUuid client(const QString& name, quib::ClientStatus status = quib::ClientStatus::Lead)
    {
        auto data = store->data();
        const auto id = QUuid::createUuid();
        data.clients.append({.id = id, .name = name, .status = status});
        store->setData(data);
        return id;
    }

    /// A new task, appended.
    QUuid task(const QString& title, const std::optional<QUuid>& client = {}, bool done = false)
    {
        auto data = store->data();
        const auto id = QUuid::createUuid();
        data.tasks.append({.id = id,
                           .title = title,
                           .clientID = client,
                           .done = done,
                           .created = QDateTime::fromSecsSinceEpoch(0, quib::Utc)});
        store->setData(data);
        return id;
    }
};
