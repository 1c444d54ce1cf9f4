// What a hand does on the tabs of the open card.
#include "desktop/desk/day.h"
#include "desktop/desk/places.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint ConnectCalendar = places::ConnectCalendar;
constexpr QPoint FirstEvent = places::FirstEvent; // Its bar.
constexpr QPoint SecondEvent{691, 132};
constexpr QPoint PlayPause = places::PlayPause;
constexpr QPoint EditLaunch = places::EditLaunch;
constexpr QPoint AddWebsite = places::AddWebsite;
constexpr QPoint RemoveFirstLaunch{547, 244};
constexpr QPoint AddClient{671, 69};
constexpr QPoint Status{726, 84};
constexpr QPoint InTheStatusMenu{890, 200};
constexpr QPoint TrackTime{808, 174}; // Of a client that has a site.
constexpr QPoint DeleteClient = places::DeleteClient;
constexpr QPoint NewTask{750, 62};
constexpr QPoint TaskClient{1058, 62};
constexpr QPoint InTheTaskClientMenu{1110, 170};
constexpr QPoint ClearDone{1096, 92};
constexpr QPoint TimerClient{590, 94};
constexpr QPoint InTheTimerClientMenu{690, 170};
constexpr QPoint TimerNote{620, 129};
constexpr QPoint Start{491, 163};
constexpr QPoint Stop{490, 178}; // Below a note.
constexpr QPoint NotesEditor{600, 150};
constexpr QPoint InsertTimestamp{1115, 57};

constexpr QPoint clientRow(int row)
{
    return {540, 100 + 29 * row};
}

constexpr int taskRow(int row)
{
    return 123 + 28 * row;
}

bool isGreen(const QColor& color)
{
    return color.green() > 150 && color.red() < 120;
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

/// Both of its events.
void Day::connectCalendar() const
{
    clickWhenThere(ConnectCalendar);
    QTRY_VERIFY_WITH_TIMEOUT(isGreen(pixel(FirstEvent)) && isGreen(pixel(SecondEvent)), 20'000);
}

void Day::pressPlay(const QString& thenHeard)
{
    click(PlayPause);
    QTRY_COMPARE_WITH_TIMEOUT(playbackOf(*this), thenHeard, 10'000);
}

void Day::exchangeLaunches(const QString& address) const
{
    const auto before = saved(u"launch"_s).size();
    click(EditLaunch);
    clickWhenThere(RemoveFirstLaunch);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"launch"_s).size(), before - 1, 10'000);
    click(AddWebsite);
    key(u"Tab"_s);
    type(address);
    key(u"Return"_s);
    QTRY_COMPARE_WITH_TIMEOUT(saved(u"launch"_s).size(), before, 10'000);
    click(EditLaunch);
}

void Day::writeNotes(const QStringList& lines) const
{
    clickWhenThere(NotesEditor);
    for (const auto& line : lines) {
        type(line);
        key(u"Return"_s);
    }
    const auto text = lines.join(u'\n') + u'\n';
    QTRY_COMPARE_WITH_TIMEOUT(data()["notes"_L1].toString(), text, 10'000);
}

void Day::stampNotes() const
{
    const auto before = data()["notes"_L1].toString();
    click(InsertTimestamp);
    QTRY_VERIFY_WITH_TIMEOUT(data()["notes"_L1].toString().size() > before.size(), 10'000);
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
