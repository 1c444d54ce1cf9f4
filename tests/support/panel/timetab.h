#pragma once

#include "support/downloadsfortest.h"
#include "support/panel/shownpanel.h"
#include "views/motion/beat.h"

/// The time tab of a panel that has the keyboard.
struct TimeTab : ShownPanel {
    DownloadsForTest downloads;

    TimeTab()
    {
        open(quib::Tab::Time);
        takeKeyboard();
    }

    /// A new client, appended.
    QUuid client(const QString& name, quib::ClientStatus status = quib::ClientStatus::Build,
                 double rate = 35) const
    {
        auto data = store().data();
        data.clients.append(
            {.id = QUuid::createUuid(), .name = name, .status = status, .hourlyRate = rate});
        store().setData(data);
        return data.clients.back().id;
    }

    /// A new entry of that many seconds that ends now, appended.
    void entry(int seconds, const std::optional<QUuid>& client = {}) const
    {
        auto data = store().data();
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = client,
                             .start = hands.now.addSecs(-seconds),
                             .end = hands.now});
        store().setData(data);
    }

    /// A timer that runs since that many seconds.
    void running(qint64 seconds, const std::optional<QUuid>& client = {},
                 const QString& note = {}) const
    {
        auto data = store().data();
        data.entries.prepend({.id = QUuid::createUuid(),
                              .clientID = client,
                              .start = hands.now.addSecs(-seconds),
                              .note = note});
        store().setData(data);
    }

    QQuickItem* row(int number) const { return rowOf(item(QStringLiteral("list")), number); }
    QQuickItem* part(int number, const QString& name) const { return find(row(number), name); }

    void typeNote(const QString& note) const
    {
        click(item(QStringLiteral("note")));
        type(note);
    }

    quib::Beat* clockBeat() const
    {
        return item(QStringLiteral("clock"))->findChild<quib::Beat*>();
    }
    quib::Beat* totalsBeat() const
    {
        return item(QStringLiteral("totalsCard"))
            ->findChild<quib::Beat*>({}, Qt::FindDirectChildrenOnly);
    }

    QString exportSymbol() const { return textOf(item(QStringLiteral("export")), "symbol"); }

    QQuickItem* segment(int number) const
    {
        return item(QStringLiteral("segments"))->childItems().at(number);
    }
};
