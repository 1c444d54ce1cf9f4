#include "support/timetab.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;

/// Every number of the time tab, read from the live items.
class TimeViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void cards_standSideBySide();
    void idleTimer_hasItsSizes();
    void runningTimer_hasItsSizes();
    void heading_standsOnOneLine();
    void periodAndExport_areOneGroup();
    void list_beginsBelowTheChoices();
    void row_hasItsSizes();
    void longNamesAndNotes_stayInTheirCards();
    void longestClock_staysInItsCard();
    void hugeAmount_staysInItsFrame_data();
    void hugeAmount_staysInItsFrame();
    void hugeTotal_leavesRoomForTheAmount();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }
    QRectF rect(const QString& name) { return m_tab->rect(name); }
    QRectF inside(const QString& card) { return rect(card).adjusted(12, 12, -12, -12); }
    void settle() { m_tab->settle(); }

    std::unique_ptr<TimeTab> m_tab;
};

namespace {

double baselineOf(const QQuickItem* text)
{
    return inScene(text).top() + text->baselineOffset();
}

} // namespace

void TimeViewSizesTest::cards_standSideBySide()
{
    const auto timer = rect(u"timerCard"_s);
    const auto totals = rect(u"totalsCard"_s);
    const auto area = rect(u"tabArea"_s);

    QCOMPARE(timer.width(), 240.0);
    QCOMPARE(timer.left(), area.left());
    QCOMPARE(totals.left() - timer.right(), 10.0);
    QCOMPARE(totals.right(), area.right());
    QCOMPARE(timer.top(), totals.top());
    QCOMPARE(timer.bottom(), area.bottom());
    QCOMPARE(totals.bottom(), area.bottom());
}

void TimeViewSizesTest::idleTimer_hasItsSizes()
{
    const auto room = inside(u"timerCard"_s);
    const auto heading = rect(u"heading"_s);
    const auto picker = rect(u"timerClient"_s);
    const auto note = rect(u"note"_s);
    const auto start = rect(u"start"_s);

    QCOMPARE(heading.topLeft(), room.topLeft());
    QCOMPARE(m_tab->text(u"heading"_s), u"Timer"_s);
    QCOMPARE(picker.left(), room.left());
    QCOMPARE(picker.width(), room.width());
    QCOMPARE(picker.top() - heading.bottom(), 9.0);
    QCOMPARE(textOf(item(u"timerClient"_s), "placeholder"), u"Choose client"_s);
    QCOMPARE(note.left(), room.left());
    QCOMPARE(note.width(), room.width());
    QCOMPARE(note.top() - picker.bottom(), 9.0);
    QCOMPARE(textOf(item(u"note"_s), "placeholder"), u"What are you working on?"_s);
    QCOMPARE(start.left(), room.left());
    QCOMPARE(start.top() - note.bottom(), 9.0);
    QCOMPARE(textOf(item(u"start"_s), "title"), u"Start"_s);
    QCOMPARE(colorOf(item(u"start"_s), "fill"), Brand::purple());
}

void TimeViewSizesTest::runningTimer_hasItsSizes()
{
    m_tab->running(3725, m_tab->client(u"Café"_s), u"Hero"_s);
    settle();
    const auto room = inside(u"timerCard"_s);
    auto top = rect(u"heading"_s).bottom();

    for (const auto& name : {u"runningClient"_s, u"runningNote"_s, u"clock"_s, u"stop"_s}) {
        QCOMPARE(rect(name).left(), room.left());
        QCOMPARE(rect(name).top() - top, 9.0);
        top = rect(name).bottom();
    }
    QCOMPARE(lookOf(item(u"runningClient"_s)), (Look{13, QFont::DemiBold, Qt::white}));
    QCOMPARE(lookOf(item(u"runningNote"_s)), (Look{11, QFont::Normal, Brand::muted()}));
    QCOMPARE(lookOf(item(u"clock"_s)), (Look{24, QFont::DemiBold, Qt::white}));
    const auto fill = colorOf(item(u"stop"_s), "fill");
    QCOMPARE(fill.rgb(), Brand::red().rgb());
    QVERIFY(qAbs(fill.alphaF() - 0.7F) < 1e-4F);
}

void TimeViewSizesTest::heading_standsOnOneLine()
{
    m_tab->entry(7500, m_tab->client(u"Café"_s));
    settle();
    const auto total = rect(u"total"_s);

    QCOMPARE(total.topLeft(), inside(u"totalsCard"_s).topLeft());
    QCOMPARE(lookOf(item(u"total"_s)), (Look{22, QFont::Bold, Qt::white}));
    QCOMPARE(lookOf(item(u"billable"_s)), (Look{12, QFont::Normal, Brand::muted()}));
    QCOMPARE(rect(u"billable"_s).left() - total.right(), 8.0);
    QVERIFY(qAbs(baselineOf(item(u"billable"_s)) - baselineOf(item(u"total"_s))) <= 0.5);
}

void TimeViewSizesTest::periodAndExport_areOneGroup()
{
    const auto period = rect(u"period"_s);
    const auto button = rect(u"export"_s);

    QCOMPARE(period.left(), inside(u"totalsCard"_s).left());
    QCOMPARE(period.width(), 170.0);
    QCOMPARE(rect(u"choices"_s).top() - rect(u"total"_s).bottom(), 8.0);
    QCOMPARE(button.left() - period.right(), 4.0);
    QCOMPARE(button.size(), QSizeF(26, 26));
    QVERIFY(qAbs(button.center().y() - period.center().y()) <= 0.5);
    QCOMPARE(item(u"period"_s)->property("titles").toStringList(),
             (QStringList{u"This week"_s, u"This month"_s}));
    QCOMPARE(textOf(item(u"export"_s), "help"), u"Export timesheet CSV to Downloads"_s);
}

void TimeViewSizesTest::list_beginsBelowTheChoices()
{
    const auto room = inside(u"totalsCard"_s);
    const auto nothing = rect(u"nothing"_s);

    QCOMPARE(rect(u"list"_s).top() - rect(u"choices"_s).bottom(), 8.0);
    QCOMPARE(rect(u"list"_s).bottomLeft(), room.bottomLeft());
    QCOMPARE(rect(u"list"_s).right(), room.right());
    QCOMPARE(nothing.topLeft(), rect(u"list"_s).topLeft());
    QCOMPARE(lookOf(item(u"nothing"_s)), (Look{11.5, QFont::Normal, Brand::muted2()}));
}

void TimeViewSizesTest::row_hasItsSizes()
{
    m_tab->entry(7500, m_tab->client(u"Café"_s));
    m_tab->entry(60);
    settle();
    const auto row = inScene(m_tab->row(0));
    const auto* name = m_tab->part(0, u"name"_s);
    const auto* duration = m_tab->part(0, u"duration"_s);
    const auto* amount = m_tab->part(0, u"amount"_s);
    const auto* track = m_tab->part(0, u"track"_s);
    const auto* bar = m_tab->part(0, u"bar"_s);

    QCOMPARE(row.width(), inside(u"totalsCard"_s).width());
    QCOMPARE(inScene(m_tab->row(1)).top() - row.bottom(), 8.0);
    QCOMPARE(lookOf(name), (Look{11.5, QFont::Medium, Qt::white}));
    QCOMPARE(inScene(name).topLeft(), row.topLeft());
    QCOMPARE(lookOf(duration), (Look{11, QFont::Normal, Qt::white}));
    QCOMPARE(lookOf(m_tab->part(0, u"digits"_s)), (Look{11, QFont::Normal, Brand::muted()}));
    QCOMPARE(amount->width(), 72.0);
    QCOMPARE(inScene(amount).right(), row.right());
    QCOMPARE(inScene(m_tab->part(0, u"digits"_s)).right(), row.right());
    QCOMPARE(inScene(amount).left() - inScene(duration).right(), 8.0);
    QVERIFY(qAbs(baselineOf(duration) - baselineOf(name)) <= 0.5);
    QVERIFY(qAbs(baselineOf(amount) - baselineOf(name)) <= 0.5);
    QCOMPARE(inScene(track), QRectF(row.left(), row.bottom() - 4, row.width(), 4));
    QCOMPARE(colorOf(track), Brand::white(0.06));
    QCOMPARE(numberOf(track, "radius"), 2.0);
    QCOMPARE(inScene(bar).topLeft(), inScene(track).topLeft());
    QCOMPARE(bar->height(), 4.0);
    QCOMPARE(numberOf(bar, "radius"), 2.0);
}

void TimeViewSizesTest::longNamesAndNotes_stayInTheirCards()
{
    const auto name
        = u"Ein Name ohne Ende 👩‍👩‍👧‍👦 مكتبة الزاوية "_s.repeated(10);
    m_tab->running(3600, m_tab->client(name), QString(5000, u'w') + u"\nmore"_s);
    settle();

    const auto room = inside(u"timerCard"_s);
    QCOMPARE(rect(u"runningClient"_s).width(), room.width());
    QCOMPARE(rect(u"runningNote"_s).width(), room.width());
    QVERIFY(rect(u"runningNote"_s).height() < 3 * 11 * 1.3);
    QVERIFY(rect(u"stop"_s).bottom() < room.bottom());
    const auto rowName = inScene(m_tab->part(0, u"name"_s));
    QCOMPARE(inScene(m_tab->part(0, u"duration"_s)).left() - rowName.right(), 8.0);
    QVERIFY(rowName.width() > 150);
}

void TimeViewSizesTest::longestClock_staysInItsCard()
{
    m_tab->running(QDateTime({1, 1, 1}, {0, 0}, Qt::UTC).secsTo(m_tab->hands.now));
    settle();

    QCOMPARE(m_tab->text(u"clock"_s).size(), u"17750000:00:00"_s.size());
    QVERIFY(rect(u"clock"_s).right() <= inside(u"timerCard"_s).right() + 0.01);
}

void TimeViewSizesTest::hugeAmount_staysInItsFrame_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<bool>("isWhole");

    QTest::addRow("an ordinary one") << 1250.0 << true;
    QTest::addRow("a million") << 1e6 << true;
    QTest::addRow("1e15") << 1e15 << false;
    QTest::addRow("of three hundred digits") << 1e300 << false;
}

void TimeViewSizesTest::hugeAmount_staysInItsFrame()
{
    QFETCH(double, rate);
    QFETCH(bool, isWhole);
    m_tab->entry(3600, m_tab->client(u"Café"_s, ClientStatus::Build, rate));
    settle();
    const auto frame = inScene(m_tab->part(0, u"amount"_s));
    const auto* digits = m_tab->part(0, u"digits"_s);
    const auto* shrunk = m_tab->part(0, u"shrunk"_s);

    QCOMPARE(digits->isVisible(), isWhole);
    QCOMPARE(shrunk->isVisible(), !isWhole);
    QVERIFY(frame.contains((isWhole ? inScene(digits) : inScene(shrunk)).center()));
    QVERIFY((isWhole ? digits : shrunk)->width() <= frame.width());
    QVERIFY(rect(u"billable"_s).right() <= inside(u"totalsCard"_s).right());
}

void TimeViewSizesTest::hugeTotal_leavesRoomForTheAmount()
{
    auto data = m_tab->store().data();
    for (int i = 0; i < 2000; ++i) {
        data.entries.append({.id = QUuid::createUuid(),
                             .start = m_tab->hands.now,
                             .end = QDateTime({9999, 12, 31}, {0, 0}, Qt::UTC)});
    }
    m_tab->store().setData(data);
    settle();

    QVERIFY(m_tab->text(u"total"_s).size() > 12);
    QVERIFY(rect(u"billable"_s).left() > rect(u"total"_s).right());
    QVERIFY(item(u"billable"_s)->width() > 60);
}

QTEST_MAIN(TimeViewSizesTest)
#include "tst_timeviewsizes.moc"
