#pragma once

#include "support/panel/shownpanel.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// A panel with a workspace and a day of which nothing fits, open at a tab, with the keyboard.
struct CrowdedPanel : ShownPanel {
    static constexpr int Many = 60;

    explicit CrowdedPanel(quib::Tab tab)
    {
        writeFile(workspace.folder.filePath(QStringLiteral("shortcuts.json")), shortcuts());
        store().setData(data(hands.now));
        calendars.authorizations.front()(quib::CalendarAuthorization::FullAccess);
        calendars.readings.back().answer(events(hands.now));
        open(tab);
        takeKeyboard();
    }

    /// By the name of the list, or of the one in the menu of clients, which is opened for it.
    QQuickItem* list(const QString& name)
    {
        if (name != QStringLiteral("menuList")) {
            return item(name);
        }
        click(item(QStringLiteral("newClient")));
        settle();
        return find(window->contentItem(), name);
    }

private:
    static QString named(int number) { return QStringLiteral("Number %1 of many").arg(number); }

    static quib::QuibData data(const QDateTime& now)
    {
        const auto target = QStringLiteral("a.example");
        const auto start = now.addSecs(-100);
        quib::QuibData data;
        for (int number = 0; number < Many; ++number) {
            const auto name = named(number);
            const auto client = QUuid::createUuid();
            data.clients.append({.id = client, .name = name});
            data.tasks.append({.id = QUuid::createUuid(), .title = name, .clientID = client});
            data.entries.append(
                {.id = QUuid::createUuid(), .clientID = client, .start = start, .end = now});
            data.launch.append({.id = QUuid::createUuid(), .name = name, .target = target});
            data.shelf.append({.id = QUuid::createUuid(), .path = u'/' + name});
        }
        return data;
    }

    static QByteArray shortcuts()
    {
        QJsonArray buttons;
        QJsonArray groups;
        for (int number = 0; number < Many; ++number) {
            buttons << QJsonObject{{QStringLiteral("name"), named(number)},
                                   {QStringLiteral("url"), QStringLiteral("a.example")}};
        }
        for (int number = 0; number < Many / 5; ++number) {
            groups << QJsonObject{{QStringLiteral("title"), named(number)},
                                  {QStringLiteral("buttons"), buttons}};
        }
        return QJsonDocument(QJsonObject{{QStringLiteral("groups"), groups}}).toJson();
    }

    static QList<quib::CalendarEntry> events(const QDateTime& now)
    {
        QList<quib::CalendarEntry> events;
        for (int number = 0; number < Many; ++number) {
            events.append({.id = QString::number(number),
                           .title = named(number),
                           .start = now.addSecs(600),
                           .end = now.addSecs(1200)});
        }
        return events;
    }
};
