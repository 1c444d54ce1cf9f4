#include "support/panel/timetab.h"

using namespace Qt::StringLiterals;
using quib::Tab;

/// The time tab that goes out of sight and comes back.
class TimeViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void outOfSight_nothingRuns_data();
    void outOfSight_nothingRuns();
    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays_data();
    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }
    void showAnew(const QByteArray& how);

    std::unique_ptr<TimeTab> m_tab;
};

void TimeViewTest::showAnew(const QByteArray& how)
{
    auto& model = m_tab->model;
    if (how == "tab") {
        model.setTab(Tab::Tasks);
        model.setTab(Tab::Time);
        return;
    }
    model.setExpanded(false);
    QTRY_VERIFY(!item(u"timeView"_s)->isVisible());
    model.setExpanded(true);
}

void TimeViewTest::outOfSight_nothingRuns_data()
{
    QTest::addColumn<bool>("collapsed");

    QTest::addRow("another tab") << false;
    QTest::addRow("collapsed") << true;
}

void TimeViewTest::outOfSight_nothingRuns()
{
    QFETCH(bool, collapsed);
    m_tab->running(60);
    QVERIFY(m_tab->clockBeat()->isRunning() && m_tab->totalsBeat()->isRunning());

    if (collapsed) {
        m_tab->model.setExpanded(false);
    } else {
        m_tab->model.setTab(Tab::Tasks);
    }

    QTRY_VERIFY(!m_tab->clockBeat()->isRunning());
    QVERIFY(!m_tab->totalsBeat()->isRunning());
    m_tab->entry(3600);
    QCOMPARE(m_tab->text(u"total"_s), u"1m"_s); // No reader, no sum.
}

void TimeViewTest::shownAnew_theCheckMarkIsAtRestAndTheNoteStays_data()
{
    QTest::addColumn<QByteArray>("how");

    QTest::addRow("from another tab") << "tab"_ba;
    QTest::addRow("from the notch") << "notch"_ba;
}

void TimeViewTest::shownAnew_theCheckMarkIsAtRestAndTheNoteStays()
{
    QFETCH(QByteArray, how);
    m_tab->typeNote(u"half-typed"_s);
    m_tab->click(m_tab->segment(1));
    m_tab->click(item(u"export"_s));
    QCOMPARE(m_tab->exportSymbol(), u"checkmark"_s);

    showAnew(how);

    QCOMPARE(m_tab->exportSymbol(), u"square.and.arrow.up"_s);
    QCOMPARE(m_tab->text(u"note"_s), u"half-typed"_s);
    QCOMPARE(item(u"period"_s)->property("selected").toInt(), 1);
}

QTEST_MAIN(TimeViewTest)
#include "tst_timeview.moc"
