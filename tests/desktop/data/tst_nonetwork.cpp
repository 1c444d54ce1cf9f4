#include "desktop/desk/desk.h"
#include "platform/linux/media/fakeplayer.h"
#include "support/bytesof.h"
#include "support/sendsignal.h"
#include "support/strace.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// Nothing is sent anywhere, whatever the texts look like.
class NoNetworkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void allTabs_connectToNothingButThisMachine();
};

namespace {

/// Markup that would fetch a picture, wherever a text can stand.
QByteArray luringWorkspace()
{
    const auto lure
        = u"<img src=\"http://192.0.2.1/pixel.png\"><a href=\"https://example.org/\">x</a>"
          "![](http://192.0.2.1/x.png)"_s;
    const QString id = u"6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34"_s;
    const QString then = u"2026-03-02T09:00:00Z"_s;
    const QJsonObject client{{u"id"_s, id},
                             {u"name"_s, lure},
                             {u"status"_s, u"lead"_s},
                             {u"siteURL"_s, u"192.0.2.1/site"_s},
                             {u"folderPath"_s, u"//192.0.2.1/share"_s},
                             {u"hourlyRate"_s, 30},
                             {u"notes"_s, lure}};
    const QJsonObject task{{u"id"_s, id},
                           {u"title"_s, lure},
                           {u"done"_s, false},
                           {u"created"_s, then},
                           {u"clientID"_s, id}};
    const QJsonObject entry{
        {u"id"_s, id}, {u"note"_s, lure}, {u"start"_s, then}, {u"clientID"_s, id}};
    const QJsonObject file{{u"id"_s, id}, {u"path"_s, u"//192.0.2.1/share/x.png"_s}};
    const QJsonObject link{{u"id"_s, id}, {u"name"_s, lure}, {u"target"_s, u"http://192.0.2.1/"_s}};
    return QJsonDocument(QJsonObject{{u"clients"_s, QJsonArray{client}},
                                     {u"tasks"_s, QJsonArray{task}},
                                     {u"entries"_s, QJsonArray{entry}},
                                     {u"shelf"_s, QJsonArray{file}},
                                     {u"launch"_s, QJsonArray{link}},
                                     {u"notes"_s, lure}})
        .toJson();
}

QByteArray luringShortcuts()
{
    return R"({"groups": [{"title": "<img src='http://192.0.2.1/a.png'>", "buttons": [
        {"name": "<img src='http://192.0.2.1/b.png'>", "url": "http://192.0.2.1/"},
        {"name": "c", "icon": "http://192.0.2.1/c.svg", "url": "//192.0.2.1/d.app"}]}]})";
}

QVariantMap luringTrack()
{
    return {{u"xesam:title"_s, u"<img src='http://192.0.2.1/t.png'>"_s},
            {u"xesam:artist"_s, QStringList{u"http://192.0.2.1/"_s}},
            {u"xesam:url"_s, u"http://192.0.2.1/song.mp3"_s},
            {u"mpris:artUrl"_s, u"http://192.0.2.1/art.png"_s}};
}

} // namespace

void NoNetworkTest::initTestCase()
{
    if (const auto hindrance = hindranceOfStrace(); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }
}

void NoNetworkTest::allTabs_connectToNothingButThisMachine()
{
    Desk desk;
    desk.writeData(luringWorkspace());
    writeFile(desk.dataFolder() + u"/shortcuts.json"_s, luringShortcuts());
    qputenv("DBUS_SESSION_BUS_ADDRESS", desk.busAddress().toUtf8());
    FakePlayer player(u"spotify"_s);
    player.properties[u"Metadata"_s] = luringTrack();
    QVERIFY(player.start());
    const auto trace = desk.folder(u"trace"_s);

    const auto quib
        = desk.startQuib({u"strace"_s, u"-f"_s, u"-e"_s,
                          u"trace=connect,socket,sendto,sendmsg,sendmmsg"_s, u"-o"_s, trace});
    desk.openWithPointer();
    QTRY_VERIFY(player.calls.contains(u"GetAll"_s));
    for (int tab = 0; tab < 7; ++tab) {
        desk.showTab(tab);
        desk.moveTo(Desk::InTheCard);
    }
    desk.showTab(2);
    desk.click(places::FirstClient);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    const auto strace = quib->processId(); // Which keeps signals to itself.
    const auto children = bytesOf(u"/proc/%1/task/%1/children"_s.arg(strace)).trimmed();
    sendSignal(children.toLongLong(), SIGTERM);
    QVERIFY(quib->waitForFinished());

    const auto told = bytesOf(trace);
    QVERIFY(told.count("connect(") > 1); // To the X server and the bus.
    for (const auto& line : told.split('\n')) {
        QVERIFY2(!line.contains("AF_INET"), line.constData());
        QVERIFY2(!line.contains(" connect(") || line.contains("sa_family=AF_UNIX"),
                 line.constData());
    }
}

QTEST_GUILESS_MAIN(NoNetworkTest)
#include "tst_nonetwork.moc"
