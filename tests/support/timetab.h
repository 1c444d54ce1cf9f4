#pragma once

#include "support/downloadsfortest.h"
#include "support/handclock.h"
#include "support/shownpanel.h"
#include "views/beat.h"

/// The panel on its Time tab; the store's time is the test's to turn.
struct TimeTab {
    HandClock hands;
    DownloadsForTest downloads;
    ShownPanel panel{{}, {.clock = hands.clock(), .schedule = hands.scheduler()}};

    TimeTab()
    {
        panel.open(quib::Tab::Time);
        panel.window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(panel.window.get());
    }

    quib::Store& store() const { return *panel.workspace.store; }
    QQuickItem* item(const QString& name) const { return panel.item(name); }
    QRectF rect(const QString& name) const { return panel.rect(name); }
    QString text(const QString& name) const { return item(name)->property("text").toString(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(panel.window.get(), Qt::Key(key), modifiers);
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

    QQuickItem* row(int number) const
    {
        QQuickItem* found = nullptr;
        auto* list = item(QStringLiteral("list"));
        QMetaObject::invokeMethod(list, "forceLayout");
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(int, number));
        return found;
    }

    QQuickItem* part(int number, const QString& name) const
    {
        return ShownPanel::find(row(number), name);
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

    /// The name of what has the focus; of a field, not of the text in it.
    QString focused() const
    {
        const auto* focus = panel.window->activeFocusItem();
        while (
            focus
            && (focus->objectName().isEmpty() || focus->objectName() == QLatin1String("input"))) {
            focus = focus->parentItem();
        }
        return focus ? focus->objectName() : QString();
    }

    QString exportSymbol() const
    {
        return item(QStringLiteral("export"))->property("symbol").toString();
    }

    QQuickItem* segment(int number) const
    {
        return item(QStringLiteral("segments"))->childItems().at(number);
    }
};
