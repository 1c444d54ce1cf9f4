#include "model/time/utc.h"
#include "views/models/eventlistmodel.h"
#include "views/models/launchlistmodel.h"
#include "views/models/opentasklistmodel.h"

#include "support/fakes/fakecalendarstore.h"
#include "support/fakes/fakecommands.h"
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
    void launchItem_goesToTheEnd();
    void launchItem_isTakenAway();
    void link_withoutAddress_isNone();
    void application_isNamedByTheShell();
    void application_storeGoneMeanwhile_isDropped();
    void events_changeRowByRow();
    void sourceGone_leavesNoRows();
};

namespace {

QStringList texts(const QAbstractItemModel& model, int role)
{
    QStringList found;
    for (int row = 0; row < model.rowCount(); ++row) {
        found << model.index(row, 0).data(role).toString();
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

    QCOMPARE(texts(model, OpenTaskListModel::TitleRole), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
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

    QCOMPARE(texts(model, OpenTaskListModel::TitleRole), (QStringList{u"b"_s, u"c"_s, u"d"_s}));
    QVERIFY(resets.isEmpty());
}

void HomeModelsTest::launchItem_goesToTheEnd()
{
    Workspace workspace;
    LaunchListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setStore(workspace.store.get());
    model.addLink(u"Mail"_s, u"mail.example"_s);

    QVERIFY(model.addLink({}, u"Shop.Example.COM/admin"_s));

    QCOMPARE(texts(model, LaunchListModel::NameRole),
             (QStringList{u"Mail"_s, u"Shop.Example.COM"_s}));
    QCOMPARE(workspace.store->data().launch.back().target, u"Shop.Example.COM/admin"_s);
}

void HomeModelsTest::launchItem_isTakenAway()
{
    Workspace workspace;
    LaunchListModel model;
    const QAbstractItemModelTester tester(&model);
    model.setStore(workspace.store.get());
    model.addLink(u"Mail"_s, u"mail.example"_s);
    model.addLink(u"Docs"_s, u"docs.example"_s);

    workspace.store->removeLaunchItem(workspace.store->data().launch.front().id);

    QCOMPARE(texts(model, LaunchListModel::NameRole), QStringList{u"Docs"_s});
}

void HomeModelsTest::link_withoutAddress_isNone()
{
    Workspace workspace;
    LaunchListModel model;
    model.setStore(workspace.store.get());

    QVERIFY(!model.addLink(u"A name"_s, {}));

    QVERIFY(workspace.store->data().launch.isEmpty());
}

void HomeModelsTest::application_isNamedByTheShell()
{
    Workspace workspace;
    FakeCommands commands;
    LaunchListModel model;
    model.setStore(workspace.store.get());
    model.addApplication(&commands);
    QCOMPARE(commands.asked, QStringList{u"pick application in "_s});

    commands.choices.front()(QUrl::fromLocalFile(u"/usr/share/applications/a.desktop"_s));

    QCOMPARE(texts(model, LaunchListModel::NameRole),
             QStringList{u"the application at /usr/share/applications/a.desktop"_s});
    QCOMPARE(texts(model, LaunchListModel::PathRole),
             QStringList{u"/usr/share/applications/a.desktop"_s});
}

void HomeModelsTest::application_storeGoneMeanwhile_isDropped()
{
    Workspace workspace;
    FakeCommands commands;
    LaunchListModel model;
    model.setStore(workspace.store.get());
    model.addApplication(&commands);

    workspace.store.reset();
    commands.choices.front()(QUrl::fromLocalFile(u"/a.desktop"_s));

    QCOMPARE(model.rowCount(), 0);
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

    QCOMPARE(texts(model, EventListModel::TitleRole), (QStringList{u"a"_s, u"new"_s, u"b"_s}));
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
