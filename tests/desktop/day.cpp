#include "day.h"

#include "carrying.h"
#include "support/sendsignal.h"

#include <QFile>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint AddClient{671, 69};
constexpr QPoint Status{726, 84};
constexpr QPoint InTheStatusMenu{890, 200};
constexpr QPoint TrackTime{808, 174}; // Of a client that has a site.
constexpr QPoint DeleteClient{1115, 174};
constexpr QPoint NewTask{750, 62};
constexpr QPoint TaskClient{1058, 62};
constexpr QPoint InTheTaskClientMenu{1110, 170};
constexpr QPoint ClearDone{1096, 92};
constexpr QPoint TimerClient{590, 94};
constexpr QPoint InTheTimerClientMenu{690, 170};
constexpr QPoint TimerNote{620, 129};
constexpr QPoint Start{491, 163};
constexpr QPoint Stop{490, 178}; // Below a note.
constexpr QColor Popup{30, 27, 38};

constexpr QPoint clientRow(int row)
{
    return {540, 100 + 29 * row};
}

constexpr int taskRow(int row)
{
    return 123 + 28 * row;
}

bool isReddish(const QColor& color)
{
    return color.red() > 120 && color.red() > 2 * color.green() && color.red() > 2 * color.blue();
}

bool isRunning(const QJsonValue& entry)
{
    return entry.isObject() && !entry.toObject().contains("end"_L1);
}

} // namespace

Day::Day()
    : m_recorder(*this, {u"x-scheme-handler/https"_s, u"inode/directory"_s})
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
    moveTo(InTheCard); // So that no tip lies over what is below.
}

void Day::clickWhenThere(QPoint point) const
{
    QTRY_VERIFY_WITH_TIMEOUT(pixel(point).lightness() > 8, 10'000);
    click(point);
}

QByteArray Day::bytes() const
{
    QFile file(dataFolder() + u"/data.json"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Day::dropFiles(const QStringList& paths)
{
    const auto source = startDragSource(*this, paths);
    carry(*this, DragSourcePlace, Notch);
    QVERIFY(waitForExpanded(true));
    carryOn(*this, {800, 150});
    QTRY_VERIFY_WITH_TIMEOUT(isLit(*this), 10'000);
    button(u"up"_s);
    QTRY_COMPARE_WITH_TIMEOUT(shelfOf(*this).size(), paths.size(), 10'000);
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

/// The name is typed over the one that every new client has.
void Day::addClient(const QString& name) const
{
    const auto before = saved(u"clients"_s);
    clickWhenThere(AddClient);
    QTRY_VERIFY_WITH_TIMEOUT(saved(u"clients"_s).size() > before.size(), 10'000);
    type(name);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"clients"_s)[0]["name"_L1].toString(), name, 10'000);
}

void Day::chooseStatus(const QStringList& keys, const QString& status) const
{
    openMenu(Status, InTheStatusMenu);
    press(keys);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"clients"_s)[0]["status"_L1].toString(), status, 10'000);
}

void Day::fillIn(QPoint field, const QString& text, const QString& member,
                 const QJsonValue& value) const
{
    clickWhenThere(field);
    key(u"ctrl+a"_s);
    auto lines = text.split(u'\n');
    type(lines.takeFirst());
    for (const auto& line : lines) {
        key(u"Return"_s);
        type(line);
    }
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"clients"_s)[0][member], value, 10'000);
}

void Day::deleteClient(int row) const
{
    const auto before = saved(u"clients"_s).size();
    clickWhenThere(clientRow(row));
    click(DeleteClient);
    click(DeleteClient);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"clients"_s).size(), before - 1, 10'000);
}

void Day::trackForAMoment(int row) const
{
    const auto before = saved(u"entries"_s).size();
    clickWhenThere(clientRow(row));
    clickWhenThere(TrackTime);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"entries"_s).size(), before + 1, 10'000);
    click(TrackTime);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"entries"_s).size(), before, 10'000);
}

void Day::addTask(const QString& title) const
{
    clickWhenThere(NewTask);
    type(title);
    key(u"Return"_s);
    QTRY_COMPARE_WITH_TIMEOUT(savedTasks().value(0), title, 10'000);
}

void Day::chooseClientOfTasks(const QStringList& keys) const
{
    openMenu(TaskClient, InTheTaskClientMenu);
    press(keys);
    QTRY_VERIFY_WITH_TIMEOUT(pixel(InTheTaskClientMenu) != Popup, 10'000);
}

void Day::tick(int row, const QString& title) const
{
    click({479, taskRow(row)});
    const auto isDone = [&] {
        const auto tasks = saved(u"tasks"_s);
        return tasks[savedTasks().indexOf(title)]["done"_L1].toBool();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isDone(), 10'000);
}

void Day::removeTask(int row) const
{
    const auto before = savedTasks().size();
    moveTo({800, taskRow(row)}); // Brings the button.
    clickWhenThere({1116, taskRow(row)});
    QTRY_COMPARE_WITH_TIMEOUT(savedTasks().size(), before - 1, 10'000);
}

void Day::clearDone() const
{
    const auto before = savedTasks().size();
    click(ClearDone);
    QTRY_VERIFY_WITH_TIMEOUT(savedTasks().size() < before, 10'000);
}

void Day::chooseClientOfTimer(const QStringList& keys) const
{
    openMenu(TimerClient, InTheTimerClientMenu);
    press(keys);
    QTRY_VERIFY_WITH_TIMEOUT(pixel(InTheTimerClientMenu) != Popup, 10'000);
}

void Day::startTimer(const QString& note) const
{
    clickWhenThere(TimerNote);
    type(note);
    click(Start);
    QTRY_VERIFY_WITH_TIMEOUT(isRunning(saved(u"entries"_s).at(0)), 10'000);
}

void Day::stopTimer() const
{
    QTRY_VERIFY_WITH_TIMEOUT(isReddish(pixel(Stop)), 10'000);
    click(Stop);
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(saved(u"entries"_s).at(0)), 10'000);
}
