#include "model/time/utc.h"
#include "views/models/eventlistmodel.h"
#include "views/models/launchlistmodel.h"
#include "views/models/opentasklistmodel.h"

#include "support/fakes/fakecalendarstore.h"
#include "support/valueof.h"
#include "support/workspace.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::CalendarController;
using quib::EventListModel;
using quib::LaunchListModel;
using quib::OpenTaskListModel;
using quib::Utc;

/// The lists of the home tab.
class HomeModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tasks_areTheFirstThreeOpenOnes();
    void taskDone_bringsTheNextOne();
    void launchItems_followTheStore();
    void launchItem_isTakenAway();
    void events_changeRowByRow();
    void sourceGone_leavesNoRows();
};

namespace {

QStringList texts(const QAbstractItemModel& model, const QByteArray& role)
{
    QStringList found;
    for (int row = 0; row < model.rowCount(); ++row) {
        found << valueOf(model, row, role).toString();
    }
    return found;
}

} // namespace

void HomeModelsTest::tasks_areTheFirstThreeOpenOnes()
{
    Workspace workspace;
    workspace.task(u"a"_s);
    workspace.task(u"done"_s, {}, true);
    for (const auto& title : {u"b"_s, u"c"_s, u"d"_s}) {
        workspace.task(title);
    }
    OpenTaskListModel model;
    const QAbstractItemModelTester tester(&model);

    model.setStore(workspace.store.get());

    QCOMPARE(texts(model, "title"), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

void HomeModelsTest::taskDone_bringsTheNextOne()
{
    Workspace workspace;
    const auto first = workspace.task(u"a"_s);
    for (const auto& title : {u"b"_s, u"c"_s, u"d"_s}) {
        workspace.task(title);
    }
    OpenTaskListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setStore(workspace.store.get());
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

    workspace.store->toggleTask(first);

    QCOMPARE(texts(model, "title"), (QStringList{u"b"_s, u"c"_s, u"d"_s}));
    QVERIFY(resets.isEmpty());
}

void HomeModelsTest::launchItems_followTheStore()
{
    Workspace workspace;
    LaunchListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setStore(workspace.store.get());

    workspace.store->addLaunchItem(
        {.id = QUuid::createUuid(), .name = u"Mail"_s, .target = u"https://mail.example"_s});
    workspace.store->addLaunchItem(
        {.id = QUuid::createUuid(), .name = u"Files"_s, .target = u"/usr/share"_s});

    QCOMPARE(texts(model, "name"), (QStringList{u"Mail"_s, u"Files"_s}));
    QCOMPARE(texts(model, "path"), (QStringList{QString(), u"/usr/share"_s}));
}

void HomeModelsTest::launchItem_isTakenAway()
{
    Workspace workspace;
    LaunchListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setStore(workspace.store.get());
    workspace.store->addLaunchItem({.id = QUuid::createUuid(), .name = u"Mail"_s});
    workspace.store->addLaunchItem({.id = QUuid::createUuid(), .name = u"Docs"_s});

    workspace.store->removeLaunchItem(workspace.store->data().launch.front().id);

    QCOMPARE(texts(model, "name"), QStringList{u"Docs"_s});
}

void HomeModelsTest::events_changeRowByRow()
{
    const QDateTime now(QDate(2026, 3, 2), QTime(9, 0), Utc);
    const auto event = [&](const QString& title, int minutes) {
        return quib::CalendarEntry{.id = title,
                                   .title = title,
                                   .start = now.addSecs(minutes * 60),
                                   .end = now.addSecs(minutes * 60 + 600)};
    };
    FakeCalendarStore store;
    CalendarController calendar(
        &store, [&] { return now; }, QTimeZone::utc);
    EventListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setCalendar(&calendar);
    store.authorizations.front()(quib::CalendarAuthorization::FullAccess);
    store.readings.back().answer({event(u"a"_s, 10), event(u"b"_s, 20)});
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);

    Q_EMIT store.changed();
    store.readings.back().answer({event(u"a"_s, 10), event(u"new"_s, 15), event(u"b"_s, 20)});

    QCOMPARE(texts(model, "title"), (QStringList{u"a"_s, u"new"_s, u"b"_s}));
    QVERIFY(resets.isEmpty());
    QCOMPARE(inserted.size(), 1);
}

void HomeModelsTest::sourceGone_leavesNoRows()
{
    Workspace workspace;
    workspace.task(u"a"_s);
    workspace.store->addLaunchItem({.id = QUuid::createUuid(), .name = u"Mail"_s});
    FakeCalendarStore calendars;
    auto calendar = std::make_unique<CalendarController>(&calendars);
    OpenTaskListModel tasks;
    LaunchListModel launches;
    EventListModel events;
    tasks.setStore(workspace.store.get());
    launches.setStore(workspace.store.get());
    events.setCalendar(calendar.get());
    calendars.authorizations.front()(quib::CalendarAuthorization::FullAccess);
    calendars.readings.back().answer({{.title = u"Fair"_s, .isAllDay = true}});
    QCOMPARE(tasks.rowCount() + launches.rowCount() + events.rowCount(), 3);

    workspace.store.reset();
    calendar.reset();

    QCOMPARE(tasks.rowCount(), 0);
    QCOMPARE(launches.rowCount(), 0);
    QCOMPARE(events.rowCount(), 0);
}

QTEST_GUILESS_MAIN(HomeModelsTest)
#include "tst_homemodels.moc"
