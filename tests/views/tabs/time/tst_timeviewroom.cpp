#include "model/time/utc.h"
#include "support/panel/timetab.h"

using namespace Qt::StringLiterals;
using quib::ClientStatus;
using quib::Utc;

/// Whatever the texts and numbers of the time tab are, they stay in their places.
class TimeViewRoomTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

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

void TimeViewRoomTest::longNamesAndNotes_stayInTheirCards()
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

void TimeViewRoomTest::longestClock_staysInItsCard()
{
    m_tab->running(QDateTime({1, 1, 1}, {0, 0}, Utc).secsTo(m_tab->hands.now));
    settle();

    QCOMPARE(m_tab->text(u"clock"_s).size(), u"17750000:00:00"_s.size());
    QVERIFY(rect(u"clock"_s).right() <= inside(u"timerCard"_s).right() + 0.01);
}

void TimeViewRoomTest::hugeAmount_staysInItsFrame_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<bool>("isWhole");

    QTest::addRow("an ordinary one") << 1250.0 << true;
    QTest::addRow("a million") << 1e6 << true;
    QTest::addRow("1e15") << 1e15 << false;
    QTest::addRow("of three hundred digits") << 1e300 << false;
}

void TimeViewRoomTest::hugeAmount_staysInItsFrame()
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

void TimeViewRoomTest::hugeTotal_leavesRoomForTheAmount()
{
    auto data = m_tab->store().data();
    for (int i = 0; i < 2000; ++i) {
        data.entries.append({.id = QUuid::createUuid(),
                             .start = m_tab->hands.now,
                             .end = QDateTime({9999, 12, 31}, {0, 0}, Utc)});
    }
    m_tab->store().setData(data);
    settle();

    QVERIFY(m_tab->text(u"total"_s).size() > 12);
    QVERIFY(rect(u"billable"_s).left() > rect(u"total"_s).right());
    QVERIFY(item(u"billable"_s)->width() > 60);
}

QTEST_MAIN(TimeViewRoomTest)
#include "tst_timeviewroom.moc"
