#pragma once

#include "support/handclock.h"
#include "support/shownpanel.h"

/// The panel on its Home tab; the time is the test's to turn.
struct HomeTab {
    HandClock hands;
    ShownPanel panel{{}, {.clock = hands.clock(), .schedule = hands.scheduler()}};

    HomeTab()
    {
        panel.open(quib::Tab::Home);
        panel.window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(panel.window.get());
    }

    quib::Store& store() const { return *panel.workspace.store; }
    QQuickItem* item(const QString& name) const { return panel.item(name); }
    QQuickItem* part(const QString& card, const QString& name) const
    {
        return ShownPanel::find(item(card), name);
    }
    QString text(const QString& card, const QString& name) const
    {
        return part(card, name)->property("text").toString();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(panel.window.get(), Qt::Key(key), modifiers);
    }
    /// The name of what has the keyboard; "nothing" for what is not to be seen.
    QString focused() const
    {
        const auto* focus = panel.window->activeFocusItem();
        return focus && focus->isVisible() ? focus->objectName() : QStringLiteral("nothing");
    }
    /// Whether what has the keyboard shows it.
    bool showsFocus() const
    {
        const auto* focus = panel.window->activeFocusItem();
        return focus->property("visualFocus").toBool();
    }
    void type(const QByteArray& text) const
    {
        for (const auto letter : text) {
            QTest::keyClick(panel.window.get(), letter);
        }
    }

    /// What the player that runs says when it is asked.
    void playerSays(quib::Player player, const QString& reply)
    {
        panel.player.running = {player};
        panel.media.refresh();
        panel.player.answer(reply);
        panel.settle();
    }

    void grant(const QList<quib::CalendarEntry>& entries)
    {
        panel.calendars.authorizations.front()(quib::CalendarAuthorization::FullAccess);
        panel.calendars.readings.back().answer(entries);
        panel.settle();
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

    void launch(const QString& name, const QString& target) const
    {
        store().addLaunchItem({.id = QUuid::createUuid(), .name = name, .target = target});
        panel.settle();
    }

    /// The rows that a list or a repeater has made, from the left or the top.
    QList<QQuickItem*> rows(const QString& below, const QString& name) const
    {
        QList<QQuickItem*> found;
        collect(item(below), name, found);
        return found;
    }

private:
    static void collect(QQuickItem* below, const QString& name, QList<QQuickItem*>& found)
    {
        for (auto* child : below->childItems()) {
            if (child->objectName() == name && child->isVisible()) {
                found << child;
            }
            collect(child, name, found);
        }
    }
};
