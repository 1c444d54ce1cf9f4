#pragma once

#include "app/notch/notchmodel.h"
#include "app/notchpanel.h"
#include "integrations/actions.h"
#include "integrations/calendarcontroller.h"
#include "integrations/mediacontroller.h"
#include "shortcuts/shortcuts.h"
#include "support/fakecommands.h"
#include "support/fakeshell.h"
#include "support/workspace.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

/// The whole panel in a window, with a real store behind it. Springs snap unless a test lets them
/// move.
struct ShownPanel {
    Workspace workspace;
    quib::NotchModel model;
    QStringList asked;
    FakePanelHost host{asked};
    FakeOpener opener;
    quib::Actions actions{opener};
    FakePlayerLink player;
    quib::MediaController media{player};
    FakeCalendarStore calendars;
    quib::CalendarController calendar;
    quib::Shortcuts shortcuts;
    FakeIconSource icons;
    FakeCommands commands;
    std::unique_ptr<quib::NotchPanel> window;

    explicit ShownPanel(const quib::QuibData& data = {}, quib::Store::Surroundings around = {})
        : workspace(data, around)
        , calendar(&calendars, around.clock, QTimeZone::utc)
    {
        model.setMotionReduced(true);
        model.setNotchSize({188, 37});
        window = std::make_unique<quib::NotchPanel>(quib::ViewContext{.model = model,
                                                                      .store = *workspace.store,
                                                                      .media = media,
                                                                      .calendar = calendar,
                                                                      .shortcuts = shortcuts,
                                                                      .actions = actions,
                                                                      .icons = icons,
                                                                      .commands = commands},
                                                    host);
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

    QQuickItem* root() const { return window->rootObject(); }

    /// The first item of that name, in the order of the scene; null when there is none.
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

    static QRectF inScene(const QQuickItem* item)
    {
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }

    QRectF rect(const QString& name) const { return inScene(item(name)); }

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
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, place);
    }
};

inline QColor colorOf(const QQuickItem* item)
{
    return item->property("color").value<QColor>();
}
