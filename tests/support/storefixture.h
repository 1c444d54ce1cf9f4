#pragma once

#include "model/file/datafile.h"
#include "model/store.h"
#include "support/datafolderfortest.h"
#include "support/fakes/handclock.h"

#include <QSignalSpy>

/// A store on an empty workspace, in a folder of its own, whose time a test turns.
struct StoreFixture {
    DataFolderForTest folder;
    HandClock hands;
    quib::Store store{{.clock = hands.clock(), .schedule = hands.scheduler()}};
    QSignalSpy clients{&store, &quib::Store::clientsChanged};
    QSignalSpy tasks{&store, &quib::Store::tasksChanged};
    QSignalSpy entries{&store, &quib::Store::entriesChanged};
    QSignalSpy shelf{&store, &quib::Store::shelfChanged};
    QSignalSpy launch{&store, &quib::Store::launchChanged};
    QSignalSpy notes{&store, &quib::Store::notesChanged};

    StoreFixture() { startWith({}); }

    void startWith(const quib::QuibData& data)
    {
        store.setData(data);
        for (auto* spy : {&clients, &tasks, &entries, &shelf, &launch, &notes}) {
            spy->clear();
        }
        hands.scheduled = 0;
    }

    QString announced() const
    {
        QStringList names;
        const auto add = [&](const QSignalSpy& spy, const QString& name) {
            names += QStringList(spy.count(), name);
        };
        add(clients, QStringLiteral("clients"));
        add(tasks, QStringLiteral("tasks"));
        add(entries, QStringLiteral("entries"));
        add(shelf, QStringLiteral("shelf"));
        add(launch, QStringLiteral("launch"));
        add(notes, QStringLiteral("notes"));
        return names.join(QLatin1Char(' '));
    }
};

/// A steady id for a number.
inline QUuid idOf(int number)
{
    return QUuid::createUuidV5(QUuid(), QByteArray::number(number));
}

/// The notes in the file as it stands; empty when it cannot be read.
inline QString notesOnDisk(const DataFolderForTest& folder)
{
    return quib::decodeQuibData(folder.bytes()).value_or(quib::QuibData()).notes;
}
