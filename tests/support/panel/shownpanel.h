#pragma once

#include "app/notch/notchmodel.h"
#include "app/notchpanel.h"
#include "app/panelengine.h"
#include "integrations/calendar/calendarcontroller.h"
#include "integrations/media/mediacontroller.h"
#include "integrations/opening/actions.h"
#include "shortcuts/shortcuts.h"
#include "support/fakes/fakecommands.h"
#include "support/fakes/fakeshell.h"
#include "support/fakes/handclock.h"
#include "support/panel/look.h"
#include "support/workspace.h"

#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

/// The whole panel in a window, with a real store behind it whose time is the test's to turn.
/// Springs snap unless a test lets them move. A fault of a view fails the test.
struct ShownPanel {
    HandClock hands;
    Workspace workspace{{}, {.clock = hands.clock(), .schedule = hands.scheduler()}};
    quib::NotchModel model;
    QStringList asked;
    FakePanelHost host{asked};
    FakeOpener opener;
    quib::Actions actions{opener};
    FakePlayerLink player;
    quib::MediaController media{player};
    FakeCalendarStore calendars;
    quib::CalendarController calendar{&calendars, hands.clock(), QTimeZone::utc};
    quib::Shortcuts shortcuts;
    FakeIconSource icons;
    FakeFileProbe files;
    FakeCommands commands;
    std::unique_ptr<quib::NotchPanel> window;

    ShownPanel()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("qml|QQuickItem")));
        model.setMotionReduced(true);
        model.setNotchSize({188, 37});
        window = std::make_unique<quib::NotchPanel>(quib::ViewContext{.model = model,
                                                                      .store = *workspace.store,
                                                                      .media = media,
                                                                      .calendar = calendar,
                                                                      .shortcuts = shortcuts,
                                                                      .actions = actions,
                                                                      .icons = icons,
                                                                      .files = files,
                                                                      .commands = commands},
                                                    host, std::make_unique<quib::PanelEngine>());
        window->show();
        [[maybe_unused]] const bool isExposed = QTest::qWaitForWindowExposed(window.get());
    }

    void open(quib::Tab tab)
    {
        model.setTab(tab);
        model.setExpanded(true);
        settle();
    }

    /// Waits for the frame in which everything has found its place.
    void settle() const
    {
        QSignalSpy frames(window.get(), &QQuickWindow::frameSwapped);
        window->update();
        frames.wait();
    }

    void takeKeyboard() const
    {
        window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(window.get());
    }

    quib::Store& store() const { return *workspace.store; }
    QQuickItem* root() const { return window->rootObject(); }

    /// The first of that name, in the order of the scene; null when there is none.
    QQuickItem* item(const QString& name) const { return find(root(), name); }

    static QQuickItem* find(QQuickItem* below, const QString& name)
    {
        if (below->objectName() == name) {
            return below;
        }
        for (auto* child : below->childItems()) {
            if (auto* found = find(child, name)) {
                return found;
            }
        }
        return nullptr;
    }

    /// All of that name that are shown below an item, in the order of the scene.
    static QList<QQuickItem*> findAll(const QQuickItem* below, const QString& name)
    {
        QList<QQuickItem*> found;
        for (auto* child : below->childItems()) {
            if (child->objectName() == name && child->isVisible()) {
                found << child;
            }
            found << findAll(child, name);
        }
        return found;
    }

    /// The row that a list has made; null while it is out of sight, or where there is none.
    static QQuickItem* rowOf(QQuickItem* list, int number)
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(list, "forceLayout");
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(int, number));
        return found;
    }

    QRectF rect(const QString& name) const { return inScene(item(name)); }
    QString text(const QString& name) const { return textOf(item(name)); }

    /// The name of what has the keyboard: of a field, not of the text in it; "nothing" for what is
    /// not to be seen.
    QString focused() const
    {
        const auto* focus = window->activeFocusItem();
        const bool isSeen = focus && focus->isVisible();
        while (
            focus
            && (focus->objectName().isEmpty() || focus->objectName() == QLatin1String("input"))) {
            focus = focus->parentItem();
        }
        return isSeen && focus ? focus->objectName() : QStringLiteral("nothing");
    }

    /// Whether what has the keyboard shows it.
    bool showsFocus() const { return window->activeFocusItem()->property("visualFocus").toBool(); }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window.get(), Qt::Key(key), modifiers);
    }

    /// Down until it has repeated a few times.
    void hold(Qt::Key key) const
    {
        const auto send = [this, key](bool isPress, bool isRepeat) {
            QTest::simulateEvent(window.get(), isPress, key, {}, {}, isRepeat);
        };
        send(true, false);
        for (int repeat = 0; repeat < 5; ++repeat) {
            send(false, true);
            send(true, true);
        }
        send(false, false);
    }

    void type(const QString& text) const
    {
        for (const auto letter : text) {
            QTest::keyClick(window.get(), letter.toLatin1());
        }
    }

    void move(const QQuickItem* to) const
    {
        QTest::mouseMove(window.get(), inScene(to).center().toPoint());
    }

    void click(const QQuickItem* on) const
    {
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, inScene(on).center().toPoint());
    }

    /// Between the clicks the panel draws itself anew, and something else may come under the
    /// pointer.
    void doubleClick(const QQuickItem* on) const
    {
        const auto place = inScene(on).center().toPoint();
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, place);
        settle();
        QTest::mouseMove(window.get(), place + QPoint(1, 0)); // A hand is never quite still.
        settle();
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, place);
    }
};
