#include "desktop/desk/readdesk.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What a screen reader is told of the running program, asked for on the accessibility bus.
class AccessibilityWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTab_isToldWhole_data();
    void everyTab_isToldWhole();
    void collapsed_nothingShows();
};

namespace {

bool showsSomething(const QImage& picture, const QRect& place)
{
    QSet<QRgb> colours;
    const auto seen = place & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            colours << picture.pixel(x, y);
        }
    }
    return colours.size() > 1;
}

bool isContainer(const Told& thing)
{
    return thing.role == "list"_L1 || thing.role == "frame"_L1 || !thing.parts.empty();
}

/// What is wrong with what is told of one thing; empty where nothing is.
QString faultOf(const Told& thing, const Told& parent, const QRect& card, const QImage& picture)
{
    if (thing.name.isEmpty() && (thing.is(state::Focusable) || thing.canBePressed())) {
        return u"has no name"_s;
    }
    if (thing.role.isEmpty() || thing.role == "unknown"_L1) {
        return u"has no role"_s;
    }
    if (!card.contains(thing.place)) {
        return u"is not on the card"_s;
    }
    if (!parent.place.adjusted(-1, -1, 1, 1).contains(thing.place)) { // Less than a dot is rounded.
        return u"is not within '%1'"_s.arg(parent.name);
    }
    // What a list cuts may be its padding, or lie under the fade.
    const bool isSliver = std::min(thing.place.width(), thing.place.height()) < 12;
    if (!isContainer(thing) && !isSliver && !showsSomething(picture, thing.place)) {
        return u"is told where nothing is drawn"_s;
    }
    return {};
}

/// Of all that is shown below.
QStringList faults(const Told& parent, const QRect& card, const QImage& picture)
{
    QStringList found;
    for (const auto& thing : parent.parts) {
        const auto fault
            = thing.is(state::Showing) ? faultOf(thing, parent, card, picture) : QString();
        if (!fault.isEmpty()) {
            found << u"%1 '%2' at %3,%4, %5 x %6, %7"_s.arg(thing.role, thing.name)
                         .arg(thing.place.x())
                         .arg(thing.place.y())
                         .arg(thing.place.width())
                         .arg(thing.place.height())
                         .arg(fault);
        }
        found << faults(thing, card, picture);
    }
    return found;
}

} // namespace

void AccessibilityWalkTest::everyTab_isToldWhole_data()
{
    QTest::addColumn<int>("many");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QRect>("card");

    QTest::addRow("empty") << 0 << 1 << QRect(450, 0, 700, 290);
    QTest::addRow("rich") << 40 << 1 << QRect(450, 0, 700, 290);
    QTest::addRow("scale 2") << 4 << 2 << QRect(100, 0, 1400, 580);
}

void AccessibilityWalkTest::everyTab_isToldWhole()
{
    QFETCH(const int, many);
    QFETCH(const int, scale);
    QFETCH(const QRect, card);
    ReadDesk desk(many, scale);

    for (int number = 0; number < ReadDesk::titles().size(); ++number) {
        const auto panel = desk.showTab(number);

        QCOMPARE(panel.role, u"frame"_s);
        QCOMPARE(selectedTabs(panel), QStringList{ReadDesk::titles().at(number)});
        QCOMPARE(desk.find(u"page tab list"_s).parts.size(),
                 std::size_t(ReadDesk::titles().size()));
        QTRY_COMPARE(faults(desk.reader.panel(), card, desk.picture()).join(u'\n'), QString());
    }
}

void AccessibilityWalkTest::collapsed_nothingShows()
{
    ReadDesk desk;
    desk.showTab(3);

    desk.reader.press(desk.find(u"check box"_s, u"Keep open"_s));
    desk.moveTo(Desk::FarAway);

    QTRY_COMPARE(desk.reader.panel().shown().size(), std::size_t(1)); // The window itself.
}

QTEST_GUILESS_MAIN(AccessibilityWalkTest)
#include "tst_accessibilitywalk.moc"
