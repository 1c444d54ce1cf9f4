#include "support/panel/hometab.h"

using namespace Qt::StringLiterals;
using quib::Player;

/// Whether everything on the home tab keeps to its room.
class HomeViewRoomTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void longTexts_stayInTheirPlaces_data();
    void longTexts_stayInTheirPlaces();
    void parts_haveRoomUnderTallBars_data();
    void parts_haveRoomUnderTallBars();
    void tasks_withoutRoom_areLeftOut();

private:
    QRectF rect(const QString& name) { return m_tab->rect(name); }
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    /// Where things may stand in a card.
    QRectF room(const QString& card) { return rect(card).adjusted(11.9, 11.9, -11.9, -11.9); }
    bool staysIn(const QQuickItem* text, const QString& card);
    /// Whether these of a card, as far as they are shown, stand in it without touching each other.
    bool areApart(const QString& card, const QStringList& names, QList<QQuickItem*> items = {});

    std::unique_ptr<HomeTab> m_tab;
};

namespace {

/// Where the letters of a text are, which its item may be too narrow for.
QRectF inked(const QQuickItem* text)
{
    const auto* letters = text->childItems().front();
    const auto width = numberOf(letters, "contentWidth");
    const bool isFromRight
        = letters->property("effectiveHorizontalAlignment").toInt() == Qt::AlignRight;
    return letters->mapRectToScene(
        QRectF(isFromRight ? letters->width() - width : 0, 0, width, letters->height()));
}

} // namespace

bool HomeViewRoomTest::staysIn(const QQuickItem* text, const QString& card)
{
    const auto line = inScene(text);
    return line.height() < 20 && room(card).contains(line)
        && inked(text).right() <= room(card).right() && inked(text).left() >= room(card).left();
}

bool HomeViewRoomTest::areApart(const QString& card, const QStringList& names,
                                QList<QQuickItem*> items)
{
    for (const auto& name : names) {
        items << part(card, name);
    }
    items.removeIf([](const QQuickItem* item) { return !item->isVisible(); });
    for (qsizetype i = 0; i < items.size(); ++i) {
        const auto here = inScene(items[i]);
        const bool isButton = items[i]->property("pressed").isValid();
        if (!(isButton ? rect(card).adjusted(4, 4, -4, -4) : room(card)).contains(here)) {
            qWarning() << items[i]->objectName() << here << "stands out of" << room(card);
            return false;
        }
        for (qsizetype j = 0; j < i; ++j) {
            if (inScene(items[j]).intersects(here)) {
                qWarning() << items[i]->objectName() << here << "touches" << items[j]->objectName()
                           << inScene(items[j]);
                return false;
            }
        }
    }
    return true;
}

void HomeViewRoomTest::longTexts_stayInTheirPlaces_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("sixty letters") << QString(60, u'W');
    QTest::addRow("a megabyte") << QString(1'000'000, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(30);
    QTest::addRow("from right to left") << u"مكتبة الزاوية "_s.repeated(10);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(10);
}

void HomeViewRoomTest::longTexts_stayInTheirPlaces()
{
    QFETCH(QString, name);
    m_tab->playerSays(Player::Spotify, name + u"||"_s + name + u"||playing"_s);
    m_tab->grant({m_tab->event(name, 5)});
    m_tab->store().startTimer(m_tab->workspace.client(name), {});
    m_tab->workspace.task(name);
    m_tab->settle();
    auto* event = m_tab->rows(u"todayCard"_s, u"event"_s).front();
    auto* task = m_tab->rows(u"focusCard"_s, u"task"_s).front();

    QVERIFY(staysIn(part(u"nowPlayingCard"_s, u"title"_s), u"nowPlayingCard"_s));
    QVERIFY(staysIn(part(u"nowPlayingCard"_s, u"artist"_s), u"nowPlayingCard"_s));
    QVERIFY(staysIn(part(u"focusCard"_s, u"client"_s), u"focusCard"_s));
    QVERIFY(staysIn(ShownPanel::find(task, u"title"_s), u"focusCard"_s));
    auto* title = ShownPanel::find(event, u"title"_s);
    QVERIFY(staysIn(title, u"todayCard"_s));
    QVERIFY(inked(title).right() <= inScene(ShownPanel::find(event, u"distance"_s)).left());
}

void HomeViewRoomTest::parts_haveRoomUnderTallBars_data()
{
    QTest::addColumn<int>("height");

    for (const int height : {24, 37, 48, 64}) {
        QTest::addRow("%d points", height) << height;
    }
}

void HomeViewRoomTest::parts_haveRoomUnderTallBars()
{
    QFETCH(int, height);
    m_tab->model.setNotchSize({190, static_cast<double>(height)});
    m_tab->playerSays(Player::Spotify, u"Song||Band||playing"_s);
    m_tab->store().startTimer({}, {});
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    const auto tasks = m_tab->rows(u"focusCard"_s, u"task"_s);
    QCOMPARE(tasks.size(), 3);

    QVERIFY(areApart(u"nowPlayingCard"_s,
                     {u"heading"_s, u"artwork"_s, u"title"_s, u"artist"_s, u"previous"_s,
                      u"playPause"_s, u"next"_s}));
    QVERIFY(areApart(u"focusCard"_s, {u"heading"_s, u"client"_s, u"elapsed"_s, u"stop"_s}, tasks));
    QVERIFY(areApart(u"todayCard"_s, {u"heading"_s, u"left"_s, u"message"_s, u"connect"_s}));
    m_tab->calendars.authorizations.front()(quib::CalendarAuthorization::Denied);
    m_tab->settle();
    QVERIFY(areApart(u"todayCard"_s, {u"heading"_s, u"left"_s, u"message"_s}));
    QVERIFY(inScene(part(u"nowPlayingCard"_s, u"artwork"_s)).height() >= 24);
}

void HomeViewRoomTest::tasks_withoutRoom_areLeftOut()
{
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s});

    m_tab->model.setNotchSize({190, 100});
    m_tab->settle();

    const auto tasks = m_tab->rows(u"focusCard"_s, u"task"_s);
    QCOMPARE(tasks.size(), 1);
    QVERIFY(areApart(u"focusCard"_s, {u"heading"_s, u"start"_s}, tasks));
}

QTEST_MAIN(HomeViewRoomTest)
#include "tst_homeviewroom.moc"
