#include "desktop/desk/day.h"
#include "desktop/desk/retelling.h"

#include "desktop/desk/places.h"
#include "support/writefile.h"

#include <QDateTime>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint SecondLaunch{640, 256};
constexpr QPoint FirstLink{540, 98};
constexpr QPoint Export = places::Export;

double secondsOf(const QJsonValue& entry)
{
    const auto moment = [&](const QString& name) {
        return QDateTime::fromString(entry[name].toString(), Qt::ISODate);
    };
    const auto end = moment(u"end"_s);
    const auto until = end.isValid() ? end : QDateTime::currentDateTimeUtc();
    return static_cast<double>(moment(u"start"_s).secsTo(until));
}

} // namespace

/// One day with the real program, from the first start to the timesheet. What it leaves on disk is
/// in wholeday.json.
class WholeDayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void day_isOnDiskAsItWas();

private:
    void bookClients();
    void sortTasks();
    void startWorking();
    void lookHome();
    void followLinks();
    void restart();
    void startTwice();
    void dropFiles();
    void writeNotes();
    void stopWorking();
    void exportTheDay();
    void closeTheBook();

    Day m_day;
    Retelling m_retelling;
};

void WholeDayTest::day_isOnDiskAsItWas()
{
    for (const auto part :
         {&WholeDayTest::bookClients, &WholeDayTest::sortTasks, &WholeDayTest::startWorking,
          &WholeDayTest::lookHome, &WholeDayTest::followLinks, &WholeDayTest::restart,
          &WholeDayTest::startTwice, &WholeDayTest::dropFiles, &WholeDayTest::writeNotes,
          &WholeDayTest::stopWorking, &WholeDayTest::exportTheDay, &WholeDayTest::closeTheBook}) {
        (this->*part)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void WholeDayTest::bookClients()
{
    m_day.begin();
    m_day.goTo(Day::Clients);
    m_day.addClient(u"Harbour Yoga, Leith"_s);
    m_day.chooseStatus({u"Down"_s, u"Down"_s, u"Return"_s}, u"build"_s);
    m_day.fillIn(Day::Site, u"harbour.example/yoga"_s, u"siteURL"_s, u"harbour.example/yoga"_s);
    m_day.fillIn(Day::Rate, u"42.5"_s, u"hourlyRate"_s, 42.5);
    m_day.fillIn(Day::ClientNotes, u"Tuesdays\nand Fridays"_s, u"notes"_s,
                 u"Tuesdays\nand Fridays"_s);
    m_day.click(Day::OpenSite);
    QTRY_COMPARE(m_day.opened(), u"https://harbour.example/yoga"_s);
    m_day.addClient(u"Taken back"_s);
    m_retelling.meetClients(m_day.data());

    m_day.deleteClient(0);
    m_day.deleteClient(1); // Corner Café, whose task stays.
}

void WholeDayTest::sortTasks()
{
    m_day.goTo(Day::Tasks);
    m_day.addTask(u"Scrap this"_s);
    m_day.removeTask(0);
    m_day.tick(1, u"Tick this off to try it"_s);
    m_day.clearDone();
    m_day.chooseClientOfTasks({u"Down"_s, u"Return"_s});
    m_day.addTask(u"Buy mats"_s);
    m_day.chooseClientOfTasks({u"Home"_s, u"Return"_s});
    m_day.addTask(u"Invoice Bloom"_s);
    m_day.tick(1, u"Buy mats"_s);
}

void WholeDayTest::startWorking()
{
    m_day.goTo(Day::Time);
    m_day.chooseClientOfTimer({u"Down"_s, u"Return"_s});
    m_day.startTimer(u"fitting, \"round\" 2"_s);
}

void WholeDayTest::lookHome()
{
    m_day.goTo(Day::Home);
    m_day.connectCalendar();
    QTRY_COMPARE_WITH_TIMEOUT(m_day.heard(), u"Playing"_s, 15'000);
    m_day.pressPlay(u"Paused"_s);
    m_day.pressPlay(u"Playing"_s);
    m_day.exchangeLaunches(u"Shop.Example.COM/admin"_s);
    m_day.click(SecondLaunch);
    QTRY_COMPARE(m_day.opened(), u"https://shop.example.com/admin"_s);
}

void WholeDayTest::followLinks()
{
    m_day.goTo(Day::Links);
    m_day.clickWhenThere(FirstLink);
    QTRY_COMPARE(m_day.opened(), u"https://mail.google.com/"_s);

    writeFile(m_day.dataFolder() + u"/shortcuts.json"_s,
              R"({"groups": [{"title": "Mine", "color": "#00ff00",
                  "buttons": [{"name": "Docs", "icon": "globe", "url": "docs.example"}]}]})");
    m_day.goTo(Day::Home);
    m_day.goTo(Day::Links);
    m_day.clickWhenThere(FirstLink);
    QTRY_COMPARE(m_day.opened(), u"https://docs.example"_s);
}

void WholeDayTest::restart()
{
    const auto before = m_day.bytes();

    m_day.restart();

    QTRY_COMPARE(m_day.pixel(Day::LeftWing), QColor(Qt::black)); // The timer runs on.
    QCOMPARE(m_day.bytes(), before);
}

void WholeDayTest::startTwice()
{
    m_day.openWithPointer();
    m_day.goTo(Day::Tasks);
    m_day.moveTo(Day::FarAway);
    QVERIFY(m_day.waitForExpanded(false));

    QCOMPARE(m_day.runQuib(), 0);
    QVERIFY(m_day.waitForExpanded(true));
    m_day.type(u"Typed at once"_s);
    m_day.key(u"Return"_s);
    QTRY_COMPARE(m_day.savedTasks().value(0), u"Typed at once"_s);
}

void WholeDayTest::dropFiles()
{
    m_day.click(Desk::Pin); // Which the second start had set.
    m_day.moveTo(Desk::FarAway);
    QVERIFY(m_day.waitForExpanded(false));

    QStringList files;
    for (const auto* name : {"first.txt", "second & last.txt", "not needed.txt"}) {
        files << writeFile(m_day.folder(QString::fromLatin1(name)), "text");
    }
    m_day.dropFiles(files);

    QCOMPARE(m_day.selectedTab(), Day::Shelf);
    m_day.takeFromShelf(0);
    QVERIFY(QFile::exists(files.at(2)));
    m_day.openFile(1);
    QTRY_COMPARE(m_day.opened(), files.at(0));
}

void WholeDayTest::writeNotes()
{
    m_day.goTo(Day::Notes);
    m_day.writeNotes({u"Call Ann"_s, u"Mats: 12, blue"_s});
    m_day.stampNotes();
}

void WholeDayTest::stopWorking()
{
    m_day.goTo(Day::Time);
    const auto entry = m_day.saved(u"entries"_s).at(0);
    QTRY_VERIFY_WITH_TIMEOUT(secondsOf(entry) >= 31, 40'000); // Less would leave no trace.
    m_day.stopTimer();
    m_day.goTo(Day::Clients);
    m_day.trackForAMoment(0);
    m_day.goTo(Day::Time);
    m_day.startTimer(u"Paperwork"_s);
}

void WholeDayTest::exportTheDay()
{
    const QDir downloads(m_day.folder(u"Downloads"_s));
    QVERIFY(downloads.mkpath(u"."_s));
    m_day.click(Export);
    QTRY_COMPARE(m_day.opened(), downloads.path());

    const auto files = downloads.entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    const auto rows = readStrictly(m_day, downloads.filePath(files[0]));
    const auto entries = m_day.saved(u"entries"_s);
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows[1].value(0), u"No client"_s);
    QCOMPARE(rows[1].value(1), entries[0]["start"_L1].toString());
    QCOMPARE(rows[1].value(4), u"0.00"_s);
    QCOMPARE(rows[1].value(6), u"Paperwork"_s);
    QCOMPARE(rows[2].mid(0, 3),
             (QStringList{u"Harbour Yoga, Leith"_s, entries[1]["start"_L1].toString(),
                          entries[1]["end"_L1].toString()}));
    QVERIFY(qAbs(rows[2].value(3).toDouble() - secondsOf(entries[1]) / 3600) < 0.006);
    QCOMPARE(rows[2].value(4), u"42.50"_s);
    QCOMPARE(rows[2].value(6), u"fitting, \"round\" 2"_s);
}

void WholeDayTest::closeTheBook()
{
    m_day.quitByKey();

    QFile evening(QFINDTESTDATA("wholeday.json"));
    QVERIFY(evening.open(QIODevice::ReadOnly));
    const auto expected = evening.readAll().replace("FOLDER", m_day.folder({}).toUtf8());
    QCOMPARE(m_retelling.tell(m_day.data()), linesOf(expected));
}

QTEST_GUILESS_MAIN(WholeDayTest)
#include "tst_wholeday.moc"
