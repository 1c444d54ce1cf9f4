#include "app/notch/tab.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::Tab;

class TabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void allTabs_areSevenFromHomeToNotes();
    void tabBeside_goesRound_data();
    void tabBeside_goesRound();
};

void TabTest::texts_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("symbol");

    QTest::addRow("home") << Tab::Home << u"home"_s << u"Home"_s << u"circle.hexagongrid"_s;
    QTest::addRow("links") << Tab::Links << u"links"_s << u"Shortcuts"_s << u"square.grid.2x2"_s;
    QTest::addRow("clients") << Tab::Clients << u"clients"_s << u"Clients"_s << u"person.2"_s;
    QTest::addRow("tasks") << Tab::Tasks << u"tasks"_s << u"Tasks"_s << u"checklist"_s;
    QTest::addRow("time") << Tab::Time << u"time"_s << u"Time"_s << u"stopwatch"_s;
    QTest::addRow("shelf") << Tab::Shelf << u"shelf"_s << u"Shelf"_s << u"tray"_s;
    QTest::addRow("notes") << Tab::Notes << u"notes"_s << u"Notes"_s << u"note.text"_s;
}

void TabTest::texts()
{
    QFETCH(Tab, tab);

    QTEST(quib::rawText(tab), "raw");
    QTEST(quib::title(tab), "title");
    QTEST(quib::symbol(tab), "symbol");
}

void TabTest::allTabs_areSevenFromHomeToNotes()
{
    QCOMPARE(quib::AllTabs.size(), std::size_t(7));
    QCOMPARE(quib::AllTabs.front(), Tab::Home);
    QCOMPARE(quib::AllTabs.back(), Tab::Notes);
}

void TabTest::tabBeside_goesRound_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<int>("by");
    QTest::addColumn<Tab>("beside");

    QTest::addRow("on") << Tab::Home << 1 << Tab::Links;
    QTest::addRow("back") << Tab::Time << -1 << Tab::Tasks;
    QTest::addRow("past the last") << Tab::Notes << 1 << Tab::Home;
    QTest::addRow("before the first") << Tab::Home << -1 << Tab::Notes;
}

void TabTest::tabBeside_goesRound()
{
    QFETCH(Tab, tab);
    QFETCH(int, by);

    QTEST(quib::tabBeside(tab, by), "beside");
}

QTEST_APPLESS_MAIN(TabTest)
#include "tst_tab.moc"
