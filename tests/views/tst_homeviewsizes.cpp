#include "support/hometab.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::Player;

/// Every number of the home tab, read from the live items.
class HomeViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void cards_standAboveTheStrip();
    void nowPlaying_hasItsSizes();
    void today_hasItsSizes();
    void event_hasItsSizes();
    void focus_hasItsSizes();
    void strip_hasItsSizes();
    void longTexts_stayInTheirPlaces_data();
    void longTexts_stayInTheirPlaces();
    void parts_haveRoomUnderTallBars_data();
    void parts_haveRoomUnderTallBars();
    void tasks_withoutRoom_areLeftOut();

private:
    QRectF rect(const QString& name) { return m_tab->rect(name); }
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    QRectF rect(const QString& card, const QString& name) { return inScene(part(card, name)); }
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
    const auto width = letters->property("contentWidth").toDouble();
    const bool isFromRight
        = letters->property("effectiveHorizontalAlignment").toInt() == Qt::AlignRight;
    return letters->mapRectToScene(
        QRectF(isFromRight ? letters->width() - width : 0, 0, width, letters->height()));
}

} // namespace

bool HomeViewSizesTest::staysIn(const QQuickItem* text, const QString& card)
{
    const auto line = inScene(text);
    return line.height() < 20 && room(card).contains(line)
        && inked(text).right() <= room(card).right() && inked(text).left() >= room(card).left();
}

bool HomeViewSizesTest::areApart(const QString& card, const QStringList& names,
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

void HomeViewSizesTest::cards_standAboveTheStrip()
{
    const auto area = rect(u"tabArea"_s);
    const auto music = rect(u"nowPlayingCard"_s);
    const auto today = rect(u"todayCard"_s);
    const auto focus = rect(u"focusCard"_s);
    const auto strip = rect(u"launchStrip"_s);

    QCOMPARE(music.left(), area.left());
    QCOMPARE(music.width(), 196.0);
    QCOMPARE(today.left() - music.right(), 10.0);
    QCOMPARE(focus.left() - today.right(), 10.0);
    QCOMPARE(focus.width(), 214.0);
    QCOMPARE(focus.right(), area.right());
    for (const auto& card : {today, focus}) {
        QCOMPARE(card.top(), music.top());
        QCOMPARE(card.bottom(), music.bottom());
    }
    QCOMPARE(strip.top() - music.bottom(), 10.0);
    QCOMPARE(strip.height(), 40.0);
    QCOMPARE(strip.left(), area.left());
    QCOMPARE(strip.right(), area.right());
    QCOMPARE(strip.bottom(), area.bottom());
}

void HomeViewSizesTest::nowPlaying_hasItsSizes()
{
    const auto card = u"nowPlayingCard"_s;
    const auto* square = part(card, u"square"_s);

    QCOMPARE(square->property("radius").toDouble(), 10.0);
    QCOMPARE(square->width(), square->height());
    QCOMPARE(part(card, u"musicNote"_s)->property("size").toDouble(), 18.0);
    QCOMPARE(part(card, u"musicNote"_s)->property("weight").toInt(),
             static_cast<int>(QFont::DemiBold));
    QCOMPARE(part(card, u"waveform"_s)->property("size").toDouble(), 18.0);
    QCOMPARE(part(card, u"waveform"_s)->property("weight").toInt(),
             static_cast<int>(QFont::DemiBold));
    QCOMPARE(colorOf(square), Brand::purple());
    QCOMPARE(square->property("lowerColor").value<QColor>(), Brand::deep());
    QCOMPARE(lookOf(part(card, u"title"_s)), (Look{12.5, QFont::DemiBold, Qt::white}));
    QCOMPARE(lookOf(part(card, u"artist"_s)), (Look{11, QFont::Normal, Brand::muted()}));
    const QList<std::tuple<QString, QString, double>> buttons{
        {u"previous"_s, u"backward.fill"_s, 13},
        {u"playPause"_s, u"play.fill"_s, 18},
        {u"next"_s, u"forward.fill"_s, 13}};
    for (const auto& [name, symbol, size] : buttons) {
        const auto* button = part(card, name);
        QCOMPARE(button->property("symbol").toString(), symbol);
        QCOMPARE(button->property("size").toDouble(), size);
        QCOMPARE(button->property("tint").value<QColor>(), QColor(Qt::white));
    }
}

void HomeViewSizesTest::today_hasItsSizes()
{
    const auto card = u"todayCard"_s;

    QCOMPARE(part(card, u"sparkles"_s)->property("name").toString(), u"sparkles"_s);
    QCOMPARE(lookOf(part(card, u"message"_s)), (Look{11.5, QFont::Normal, Brand::muted()}));
    QCOMPARE(lookOf(part(card, u"left"_s)), (Look{10, QFont::Normal, Brand::muted2()}));
    QCOMPARE(rect(card, u"left"_s).right(), rect(card).right() - 12);
}

void HomeViewSizesTest::event_hasItsSizes()
{
    m_tab->grant({m_tab->event(u"Call"_s, 5)});
    auto* row = m_tab->rows(u"todayCard"_s, u"event"_s).front();
    const auto* bar = ShownPanel::find(row, u"bar"_s);

    QCOMPARE(bar->size(), QSizeF(3, 26));
    QCOMPARE(bar->property("radius").toDouble(), 2.0);
    QCOMPARE(colorOf(bar), QColor(Qt::green));
    QCOMPARE(lookOf(ShownPanel::find(row, u"title"_s)), (Look{12, QFont::Medium, Qt::white}));
    QCOMPARE(lookOf(ShownPanel::find(row, u"time"_s)), (Look{10.5, QFont::Normal, Brand::muted()}));
    QCOMPARE(lookOf(ShownPanel::find(row, u"distanceText"_s)), (Look{10, QFont::Bold, Qt::white}));
    QVERIFY(ShownPanel::find(row, u"distance"_s)->width() >= 70);
    const auto capsule = colorOf(ShownPanel::find(row, u"capsule"_s));
    QCOMPARE(capsule.rgb(), QColor(Qt::green).rgb());
    QVERIFY(qAbs(capsule.alphaF() - 0.15F) < 0.005F);
}

void HomeViewSizesTest::focus_hasItsSizes()
{
    const auto card = u"focusCard"_s;

    QCOMPARE(part(card, u"heading"_s)->property("text").toString(), u"Focus"_s);
    QCOMPARE(part(part(card, u"start"_s)->objectName(), u"symbol"_s)->property("name").toString(),
             u"play.circle.fill"_s);
    QCOMPARE(part(card, u"stop"_s)->property("symbol").toString(), u"stop.fill"_s);
}

void HomeViewSizesTest::strip_hasItsSizes()
{
    const auto card = u"launchStrip"_s;
    m_tab->launch(u"Mail"_s, u"mail.example"_s);
    m_tab->click(part(card, u"edit"_s));
    m_tab->settle();

    const QList<std::tuple<QString, QString, QString>> buttons{
        {u"edit"_s, u"checkmark"_s, u"Edit quick launch"_s},
        {u"addApplication"_s, u"app.badge"_s, u"Add an app"_s},
        {u"addLink"_s, u"link.badge.plus"_s, u"Add a website"_s}};
    for (const auto& [name, symbol, help] : buttons) {
        const auto* button = part(card, name);
        QCOMPARE(button->property("symbol").toString(), symbol);
        QCOMPARE(button->property("size").toDouble(), 12.0);
        QCOMPARE(button->property("help").toString(), help);
    }
    const auto* badge = part(card, u"badge"_s);
    QCOMPARE(badge->property("name").toString(), u"minus.circle.fill"_s);
    QVERIFY(rect(card).contains(rect(card, u"badge"_s)));
    QCOMPARE(part(card, u"newName"_s)->property("placeholder").toString(), u"Name"_s);
    const auto website = part(card, u"newURL"_s)->property("placeholder").toString();
    QVERIFY(website.startsWith(u"Website, e.g. "_s) && !website.contains(u"://"_s));
}

void HomeViewSizesTest::longTexts_stayInTheirPlaces_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("sixty letters") << QString(60, u'W');
    QTest::addRow("a megabyte") << QString(1'000'000, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(30);
    QTest::addRow("from right to left") << u"مكتبة الزاوية "_s.repeated(10);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(10);
}

void HomeViewSizesTest::longTexts_stayInTheirPlaces()
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

void HomeViewSizesTest::parts_haveRoomUnderTallBars_data()
{
    QTest::addColumn<int>("height");

    for (const int height : {24, 37, 48, 64}) {
        QTest::addRow("%d points", height) << height;
    }
}

void HomeViewSizesTest::parts_haveRoomUnderTallBars()
{
    QFETCH(int, height);
    m_tab->model.setNotchSize({190, static_cast<double>(height)});
    m_tab->playerSays(Player::Spotify, u"Song||Band||playing"_s);
    m_tab->store().startTimer({}, {});
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s, u"d"_s}) {
        m_tab->workspace.task(title);
    }
    m_tab->settle();
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
    QVERIFY(rect(u"nowPlayingCard"_s, u"artwork"_s).height() >= 24);
}

void HomeViewSizesTest::tasks_withoutRoom_areLeftOut()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s}) {
        m_tab->workspace.task(title);
    }

    m_tab->model.setNotchSize({190, 100});
    m_tab->settle();

    const auto tasks = m_tab->rows(u"focusCard"_s, u"task"_s);
    QCOMPARE(tasks.size(), 1);
    QVERIFY(areApart(u"focusCard"_s, {u"heading"_s, u"start"_s}, tasks));
}

QTEST_MAIN(HomeViewSizesTest)
#include "tst_homeviewsizes.moc"
