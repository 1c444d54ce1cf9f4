#include "desktop/desk/day.h"

#include "desktop/desk/carrying.h"
#include "support/bytesof.h"
#include "support/sendsignal.h"

#include <QFile>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint tile(int place)
{
    return {528 + 120 * place, 172};
}

} // namespace

Day::Day()
    : m_recorder(*this, {u"x-scheme-handler/https"_s, u"inode/directory"_s, u"text/plain"_s})
    , m_player(startPlayer(*this))
{
    makeCalendar(*this, {u"Fair"_s, u"Opening"_s});
    hideFileManagers(*this); // So that an export opens its folder.
}

void Day::begin()
{
    m_quib = startQuib();
    openWithPointer();
}

void Day::restart()
{
    sendSignal(m_quib->processId(), SIGTERM);
    QVERIFY(m_quib->waitForFinished());
    QCOMPARE(m_quib->exitCode(), 0);
    moveTo(FarAway);
    m_quib = startQuib();
}

void Day::quitByKey()
{
    key(u"ctrl+q"_s);
    QVERIFY(m_quib->waitForFinished());
    QCOMPARE(m_quib->exitCode(), 0);
}

void Day::goTo(Tab tab) const
{
    showTab(tab);
    moveTo(InTheCard);
}

void Day::clickWhenThere(QPoint point) const
{
    QTRY_VERIFY_WITH_TIMEOUT(pixel(point).lightness() > 8, 10'000);
    click(point);
}

QByteArray Day::bytes() const
{
    return bytesOf(dataFolder() + u"/data.json"_s);
}

void Day::dropFiles(const QStringList& paths)
{
    const auto source = startDragSource(*this, paths);
    QVERIFY(carryUntil(*this, DragSourcePlace, Notch,
                       [&] { return shelfOf(*this).size() == paths.size(); }));
    source->terminate();
    QVERIFY(source->waitForFinished());
}

void Day::press(const QStringList& keys) const
{
    for (const auto& name : keys) {
        key(name);
    }
}

void Day::openMenu(QPoint button, QPoint inTheMenu) const
{
    clickWhenThere(button);
    QTRY_COMPARE_WITH_TIMEOUT(pixel(inTheMenu), Popup, 10'000);
}

void Day::openFile(int place) const
{
    clickWhenThere(tile(place));
    click(tile(place));
}

void Day::takeFromShelf(int place) const
{
    const auto before = shelfOf(*this).size();
    const auto cross = tile(place) + QPoint(44, -46);
    moveTo(tile(place)); // Brings the button.
    QTRY_VERIFY_WITH_TIMEOUT(pixel(cross).lightness() > 100, 10'000);
    click(cross);
    QTRY_COMPARE_WITH_TIMEOUT(shelfOf(*this).size(), before - 1, 10'000);
}
