#pragma once

#include "desktop/desk/desk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <QUuid>

#include <functional>

// What a hand does that carries files from one window to another.

inline constexpr QPoint DragSourcePlace{200, 650};
inline constexpr QPoint DropTargetPlace{1400, 650};

inline Program startDragSource(Desk& desk, const QStringList& arguments)
{
    auto source = desk.start(Desk::dragSource(), arguments);
    [[maybe_unused]] const bool isSeen = QTest::qWaitFor(
        [&] {
            return desk.pixel(DragSourcePlace) != desk.pixel({20, 20});
        },
        10'000);
    return source;
}

/// Picks up what lies at a place and carries it elsewhere, in steps.
inline void carry(const Desk& desk, QPoint from, QPoint to)
{
    desk.moveTo(from);
    desk.button(QStringLiteral("down"));
    desk.moveTo(from + QPoint(30, 50));
    desk.moveTo((from + to) / 2);
    desk.moveTo(to);
}

/// Further on with what is carried. What lies beneath hears of it with the next move.
inline void carryOn(const Desk& desk, QPoint to)
{
    desk.moveTo(to);
    desk.moveTo(to + QPoint(2, 2));
}

/// The line around the card is lit while files are over it. Before it has grown, the desktop is
/// seen there, which is bluish too; and it passes that place while it springs.
inline bool isLit(const Desk& desk)
{
    const auto line = desk.pixel({800, 289});
    return line.blue() > 60 && line.red() > line.green();
}

inline bool waitUntilLit(const Desk& desk)
{
    return QTest::qWaitFor([&] { return isLit(desk); }, 10'000);
}

/// A few times, until it has worked: a file manager does not tell when it has heard of the last
/// move, and what is let go before that lies where it was. Hands are slower.
inline bool carryUntil(const Desk& desk, QPoint from, QPoint to,
                       const std::function<bool()>& isDone)
{
    for (int attempt = 0; attempt < 5 && !isDone(); ++attempt) {
        carry(desk, from, to);
        carryOn(desk, to);
        [[maybe_unused]] const bool isOpen = desk.waitForExpanded(true);
        [[maybe_unused]] const bool isFelt = QTest::qWaitFor(
            [&] {
                carryOn(desk, to + QPoint(4, 4));
                return isLit(desk);
            },
            1000);
        carryOn(desk, to);
        desk.button(QStringLiteral("up"));
        [[maybe_unused]] const bool came = QTest::qWaitFor(isDone, 2000);
    }
    return isDone();
}

/// A data file of nothing but files on the shelf.
inline QByteArray workspaceWithShelf(const QStringList& paths)
{
    QJsonArray shelf;
    for (const auto& path : paths) {
        shelf << QJsonObject{
            {QStringLiteral("id"), QUuid::createUuid().toString(QUuid::WithoutBraces)},
            {QStringLiteral("path"), path}};
    }
    QJsonObject workspace{{QStringLiteral("shelf"), shelf}, {QStringLiteral("notes"), QString()}};
    for (const auto* empty : {"clients", "tasks", "entries", "launch"}) {
        workspace.insert(QLatin1String(empty), QJsonArray());
    }
    return QJsonDocument(workspace).toJson();
}

/// The paths in data.json, in order.
inline QStringList shelfOf(const DeskHome& desk)
{
    QStringList paths;
    for (const auto& item : desk.data().value(QLatin1String("shelf")).toArray()) {
        paths << item[QLatin1String("path")].toString();
    }
    return paths;
}
