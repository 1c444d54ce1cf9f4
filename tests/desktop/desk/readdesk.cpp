#include "desktop/desk/readdesk.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

QByteArray workspace(int many)
{
    const auto id = [](int kind, int number) {
        return u"%1-1111-4111-8111-%2"_s.arg(kind, 8, 10, QChar(u'1'))
            .arg(number, 12, 10, QChar(u'0'));
    };
    QJsonArray clients;
    QJsonArray tasks;
    QJsonArray entries;
    QJsonArray launch;
    const auto now = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < many; ++i) {
        clients << QJsonObject{{u"id"_s, id(2, i)},
                               {u"name"_s, u"Client %1"_s.arg(i)},
                               {u"status"_s, u"build"_s},
                               {u"siteURL"_s, u"site%1.example"_s.arg(i)},
                               {u"folderPath"_s, u"/usr"_s},
                               {u"hourlyRate"_s, 40},
                               {u"notes"_s, u"first line\nsecond line"_s}};
        tasks << QJsonObject{{u"id"_s, id(3, i)},
                             {u"title"_s, u"Task %1"_s.arg(i)},
                             {u"done"_s, i % 3 == 2},
                             {u"created"_s, now.toString(Qt::ISODate)},
                             {u"clientID"_s, id(2, i / 4)}};
        entries << QJsonObject{{u"id"_s, id(4, i)},
                               {u"clientID"_s, id(2, i)},
                               {u"note"_s, u"work"_s},
                               {u"start"_s, now.addSecs(-3600).toString(Qt::ISODate)},
                               {u"end"_s, now.toString(Qt::ISODate)}};
        launch << QJsonObject{{u"id"_s, id(5, i)},
                              {u"name"_s, u"Site %1"_s.arg(i)},
                              {u"target"_s, u"https://site%1.example"_s.arg(i)}};
    }
    return QJsonDocument(QJsonObject{{u"clients"_s, clients},
                                     {u"tasks"_s, tasks},
                                     {u"entries"_s, entries},
                                     {u"shelf"_s, QJsonArray()},
                                     {u"launch"_s, launch},
                                     {u"notes"_s, QString()}})
        .toJson();
}

} // namespace

const QStringList& ReadDesk::titles()
{
    static const QStringList titles{u"Home"_s, u"Shortcuts"_s, u"Clients"_s, u"Tasks"_s,
                                    u"Time"_s, u"Shelf"_s,     u"Notes"_s};
    return titles;
}

ReadDesk::ReadDesk(int many, int scale)
    : Desk({.scale = scale})
{
    writeData(workspace(many));
    quib = start(Desk::quib());
    reader.panel();
    runQuib();
    waitFor("the open panel", [this] { return bool(reader.panel().find(u"page tab"_s)); });
}

Told ReadDesk::showTab(int number)
{
    key(u"ctrl+%1"_s.arg(number + 1));
    Told panel;
    waitFor("the tab", [&] {
        panel = reader.panel();
        const auto* tab = panel.find(u"page tab"_s, titles().at(number));
        return tab && tab->is(state::Selected);
    });
    return panel;
}

Told ReadDesk::find(const QString& role, const QString& name)
{
    Told found;
    waitFor("what is to be shown", [&] {
        const auto panel = reader.panel();
        const auto* thing = panel.find(role, name);
        found = thing ? *thing : Told();
        return thing != nullptr;
    });
    return found;
}

QStringList selectedTabs(const Told& panel)
{
    QStringList selected;
    for (const auto* thing : panel.shown()) {
        if (thing->role == "page tab"_L1 && thing->is(state::Selected)) {
            selected << thing->name;
        }
    }
    return selected;
}
