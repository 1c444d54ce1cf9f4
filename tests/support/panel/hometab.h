#pragma once

#include "support/panel/shownpanel.h"

/// The home tab of a panel that has the keyboard.
struct HomeTab : ShownPanel {
    HomeTab()
    {
        open(quib::Tab::Home);
        takeKeyboard();
    }

    QQuickItem* part(const QString& card, const QString& name) const
    {
        return find(item(card), name);
    }
    QString text(const QString& card, const QString& name) const
    {
        return textOf(part(card, name));
    }
    QList<QQuickItem*> rows(const QString& card, const QString& name) const
    {
        return findAll(item(card), name);
    }

    /// What the player that runs says when it is asked.
    void playerSays(quib::Player which, const QString& reply)
    {
        player.running = {which};
        media.refresh();
        player.answer(reply);
        settle();
    }

    void grant(const QList<quib::CalendarEntry>& entries)
    {
        calendars.authorizations.front()(quib::CalendarAuthorization::FullAccess);
        calendars.readings.back().answer(entries);
        settle();
    }

    /// An event that begins in that many minutes and lasts half an hour.
    quib::CalendarEntry event(const QString& title, int minutes) const
    {
        return {.id = title,
                .title = title,
                .start = hands.now.addSecs(minutes * 60),
                .end = hands.now.addSecs(minutes * 60 + 1800),
                .color = QColor(Qt::green)};
    }

    /// One event a minute, the first of them now.
    void grantMany(int count)
    {
        QList<quib::CalendarEntry> entries;
        for (int number = 0; number < count; ++number) {
            entries << event(QStringLiteral("Meeting %1").arg(number), number);
        }
        grant(entries);
    }

    void addTasks(const QStringList& titles)
    {
        for (const auto& title : titles) {
            workspace.task(title);
        }
        settle();
    }

    void launch(const QString& name, const QString& target) const
    {
        store().addLaunchItem({.id = QUuid::createUuid(), .name = name, .target = target});
        settle();
    }
};
