#pragma once

#include "support/handclock.h"
#include "support/shownpanel.h"

#include <functional>

struct ClientBookTime {
    HandClock hands;
};

/// The clients tab of a panel that has the keyboard, with two clients in it; the store's time is
/// the test's to turn.
struct ClientBook : ClientBookTime, ShownPanel {
    QUuid cafe = workspace.client(QStringLiteral("Café"), quib::ClientStatus::Build);
    QUuid bloom = workspace.client(QStringLiteral("Bloom"), quib::ClientStatus::Live);

    ClientBook()
        : ShownPanel({}, {.clock = hands.clock(), .schedule = hands.scheduler()})
    {
        open(quib::Tab::Clients);
        window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(window.get());
    }

    quib::Store& store() const { return *workspace.store; }
    quib::Client client(const QUuid& id) const { return *store().client(id); }
    QUuid selection() const { return view()->property("selection").toUuid(); }
    void select(const QUuid& id) const { view()->setProperty("selection", id); }

    void change(const QUuid& id, const std::function<void(quib::Client&)>& edit) const
    {
        auto changed = client(id);
        edit(changed);
        store().updateClient(changed);
    }

    /// Null while the row is out of sight, or where there is none.
    QQuickItem* row(int number) const
    {
        QQuickItem* found = nullptr;
        auto* list = item(QStringLiteral("clientList"));
        QMetaObject::invokeMethod(list, "forceLayout");
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(int, number));
        return found;
    }

    /// What takes the keys of a field.
    QQuickItem* input(const QString& field) const
    {
        return find(item(field), QStringLiteral("input"));
    }

    QString shown(const QString& field) const { return item(field)->property("text").toString(); }

    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) const
    {
        QTest::keyClick(window.get(), key, with);
    }

    void type(const QString& text) const
    {
        for (const auto letter : text) {
            QTest::keyClick(window.get(), letter.toLatin1());
        }
    }

private:
    QQuickItem* view() const { return item(QStringLiteral("clientsView")); }
};
