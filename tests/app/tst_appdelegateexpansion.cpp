#include "support/panel/delegatefortest.h"
#include "views/shapes/rasteritem.h"

#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::CalendarAuthorization;
using quib::Player;
using quib::Tab;

namespace {

class CountedPicture : public quib::RasterItem {
public:
    using RasterItem::RasterItem;

    mutable int made = 0;

protected:
    QImage picture(double /*pixelsPerPoint*/) const override
    {
        ++made;
        return QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
    }
};

} // namespace

/// What the panel does beside growing and shrinking when it expands and collapses, among fakes.
class AppDelegateExpansionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_quib = std::make_unique<DelegateForTest>(); }
    void cleanup() { m_quib.reset(); }

    void expand_toShelf_selectsTheShelf();
    void collapse_keepsTheTab();
    void expansion_asksThePlayerUntilTheCollapse();
    void expansion_readsTheDayAnew();
    void hoverRect_isToldInTheWindow();
    void closedForAWhile_givesMemoryBack();
    void closedForAWhile_letsGoOfPictures();
    void unpinned_aPointerThatRestsElsewhere_collapses();

private:
    std::unique_ptr<DelegateForTest> m_quib;
};

void AppDelegateExpansionTest::expand_toShelf_selectsTheShelf()
{
    m_quib->delegate.life().expand(true);

    QVERIFY(m_quib->delegate.model().isExpanded());
    QCOMPARE(m_quib->delegate.model().tab(), Tab::Shelf);
}

void AppDelegateExpansionTest::collapse_keepsTheTab()
{
    m_quib->delegate.life().expand(false);
    m_quib->delegate.model().setTab(Tab::Notes);

    m_quib->delegate.life().collapse(true);
    m_quib->hands.advance(0ms);

    QVERIFY(!m_quib->delegate.model().isExpanded());
    QCOMPARE(m_quib->delegate.model().tab(), Tab::Notes);
}

void AppDelegateExpansionTest::expansion_asksThePlayerUntilTheCollapse()
{
    auto& delegate = m_quib->launched();
    auto& player = m_quib->shell.player;
    player.running = {Player::Spotify};
    m_quib->hands.advance(5s);
    QVERIFY(player.asked.isEmpty());

    delegate.life().expand(false);
    QCOMPARE(player.asked, QStringList{u"query Spotify"_s});
    player.answer({});
    m_quib->hands.advance(2s);
    QCOMPARE(player.asked.size(), 2);
    player.answer({});

    delegate.life().collapse(true);
    m_quib->hands.advance(5s);
    QCOMPARE(player.asked.size(), 2);
}

void AppDelegateExpansionTest::expansion_readsTheDayAnew()
{
    auto& delegate = m_quib->launched();
    auto& calendar = m_quib->shell.calendar;
    calendar.authorizations.front()(CalendarAuthorization::FullAccess);
    calendar.readings.back().answer({});
    const auto readings = calendar.readings.size();

    delegate.life().expand(false);

    QCOMPARE(calendar.readings.size(), readings + 1);
}

void AppDelegateExpansionTest::closedForAWhile_givesMemoryBack()
{
    auto& delegate = m_quib->launched();
    const auto& trimmed = m_quib->shell.trimmed;
    delegate.life().expand(false);
    m_quib->hands.advance(10s);
    QCOMPARE(trimmed, 0);

    delegate.life().collapse(true);
    m_quib->hands.advance(2s);
    delegate.life().expand(false);
    delegate.life().collapse(true);
    m_quib->hands.advance(2s);
    QCOMPARE(trimmed, 0);

    m_quib->hands.advance(10s);
    QCOMPARE(trimmed, 1);
}

void AppDelegateExpansionTest::closedForAWhile_letsGoOfPictures()
{
    auto& delegate = m_quib->launched();
    auto& panel = *qobject_cast<QQuickWindow*>(QGuiApplication::allWindows().constFirst());
    CountedPicture picture;
    picture.setParentItem(panel.contentItem());
    delegate.life().expand(false);
    panel.grabWindow();
    picture.setVisible(false);
    delegate.life().collapse(true);
    m_quib->hands.advance(1s);
    panel.grabWindow();
    picture.setVisible(true);
    panel.grabWindow();
    QCOMPARE(picture.made, 1); // It may be wanted again at once.

    picture.setVisible(false);
    m_quib->hands.advance(10s);
    panel.grabWindow();
    picture.setVisible(true);
    panel.grabWindow();
    QCOMPARE(picture.made, 2);
}

void AppDelegateExpansionTest::hoverRect_isToldInTheWindow()
{
    auto& delegate = m_quib->launched();
    const auto& told = m_quib->shell.host.hoverRect;
    QCOMPARE(told, QRect(380 - 110, 0, 220, 36)); // 15 points beside the notch, 6 below it.

    delegate.store().startTimer(std::nullopt, {});
    QCOMPARE(told, QRect(380 - 202, 0, 404, 36));

    delegate.life().expand(false);
    QCOMPARE(told, QRect(30 - 4, 0, 708, 294));
}

/// Where the pointer tells of itself nothing else would come.
void AppDelegateExpansionTest::unpinned_aPointerThatRestsElsewhere_collapses()
{
    auto& delegate = m_quib->launched();
    m_quib->shell.pointer.now.position = {960, 700};
    delegate.life().openQuib();
    QCoreApplication::processEvents();
    m_quib->hands.advance(1s);
    QVERIFY(delegate.model().isExpanded());

    delegate.commands().togglePin();
    QCoreApplication::processEvents();
    m_quib->hands.advance(1s);

    QVERIFY(!delegate.model().isExpanded());
}

QTEST_MAIN(AppDelegateExpansionTest)
#include "tst_appdelegateexpansion.moc"
