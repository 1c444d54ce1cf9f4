#include "support/hometab.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;

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

private:
    QRectF rect(const QString& name) { return m_tab->rect(name); }
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    QRectF rect(const QString& card, const QString& name) { return inScene(part(card, name)); }

    std::unique_ptr<HomeTab> m_tab;
};

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

    QCOMPARE(numberOf(square, "radius"), 10.0);
    QCOMPARE(square->width(), square->height());
    QCOMPARE(numberOf(part(card, u"musicNote"_s), "size"), 18.0);
    QCOMPARE(part(card, u"musicNote"_s)->property("weight").toInt(),
             static_cast<int>(QFont::DemiBold));
    QCOMPARE(numberOf(part(card, u"waveform"_s), "size"), 18.0);
    QCOMPARE(part(card, u"waveform"_s)->property("weight").toInt(),
             static_cast<int>(QFont::DemiBold));
    QCOMPARE(colorOf(square), Brand::purple());
    QCOMPARE(colorOf(square, "lowerColor"), Brand::deep());
    QCOMPARE(lookOf(part(card, u"title"_s)), (Look{12.5, QFont::DemiBold, Qt::white}));
    QCOMPARE(lookOf(part(card, u"artist"_s)), (Look{11, QFont::Normal, Brand::muted()}));
    const QList<std::tuple<QString, QString, double>> buttons{
        {u"previous"_s, u"backward.fill"_s, 13},
        {u"playPause"_s, u"play.fill"_s, 18},
        {u"next"_s, u"forward.fill"_s, 13}};
    for (const auto& [name, symbol, size] : buttons) {
        const auto* button = part(card, name);
        QCOMPARE(textOf(button, "symbol"), symbol);
        QCOMPARE(numberOf(button, "size"), size);
        QCOMPARE(colorOf(button, "tint"), QColor(Qt::white));
    }
}

void HomeViewSizesTest::today_hasItsSizes()
{
    const auto card = u"todayCard"_s;

    QCOMPARE(textOf(part(card, u"sparkles"_s), "name"), u"sparkles"_s);
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
    QCOMPARE(numberOf(bar, "radius"), 2.0);
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

    QCOMPARE(textOf(part(card, u"heading"_s)), u"Focus"_s);
    QCOMPARE(textOf(part(part(card, u"start"_s)->objectName(), u"symbol"_s), "name"),
             u"play.circle.fill"_s);
    QCOMPARE(textOf(part(card, u"stop"_s), "symbol"), u"stop.fill"_s);
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
        QCOMPARE(textOf(button, "symbol"), symbol);
        QCOMPARE(numberOf(button, "size"), 12.0);
        QCOMPARE(textOf(button, "help"), help);
    }
    const auto* badge = part(card, u"badge"_s);
    QCOMPARE(textOf(badge, "name"), u"minus.circle.fill"_s);
    QVERIFY(rect(card).contains(rect(card, u"badge"_s)));
    QCOMPARE(textOf(part(card, u"newName"_s), "placeholder"), u"Name"_s);
    const auto website = textOf(part(card, u"newURL"_s), "placeholder");
    QVERIFY(website.startsWith(u"Website, e.g. "_s) && !website.contains(u"://"_s));
}

QTEST_MAIN(HomeViewSizesTest)
#include "tst_homeviewsizes.moc"
