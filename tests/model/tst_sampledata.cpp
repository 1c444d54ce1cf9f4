#include "model/sampledata.h"

#include "model/time/utc.h"

#include <QDir>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::sampleData;
using quib::Utc;

namespace {

const QDateTime Now(QDate(2026, 3, 2), QTime(9, 0), Utc);
const auto NoFolder = u"/nonexistent"_s;

std::optional<QString> nothing(const QString& /*name*/)
{
    return {};
}

QStringList launchNames(const quib::QuibData& data)
{
    QStringList names;
    for (const auto& item : data.launch) {
        names << item.name;
    }
    return names;
}

} // namespace

class SampleDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clients_standInOrder();
    void tasks_standInOrder();
    void restOfTheWorkspace_isEmpty();
    void ids_areAllDifferent();
    void launch_withoutApplications_hasTheTwoAddresses();
    void launch_withAllApplications_hasAllInOrder();
    void launch_missingApplication_isLeftOut();
    void launch_bundle_comesBeforeWhatTheFinderKnows();
    void launch_withoutFinder_hasTheTwoAddresses();
};

void SampleDataTest::clients_standInOrder()
{
    auto clients = sampleData(Now, nothing, NoFolder).clients;
    for (auto& client : clients) {
        QVERIFY(!client.id.isNull());
        client.id = {};
    }

    using quib::ClientStatus;
    QCOMPARE(clients,
             (QList<quib::Client>{
                 {.name = u"Corner Café"_s,
                  .status = ClientStatus::Build,
                  .hourlyRate = 35,
                  .notes = u"Example client. Edit or delete me."_s},
                 {.name = u"Northside Barbers"_s, .status = ClientStatus::Design, .hourlyRate = 35},
                 {.name = u"Bloom Florist"_s, .status = ClientStatus::Lead, .hourlyRate = 35}}));
}

void SampleDataTest::tasks_standInOrder()
{
    const auto data = sampleData(Now, nothing, NoFolder);
    auto tasks = data.tasks;
    for (auto& task : tasks) {
        task.id = {};
    }

    QCOMPARE(tasks,
             (QList<quib::TaskItem>{{.title = u"Send Corner Café the homepage preview"_s,
                                     .clientID = data.clients.front().id,
                                     .created = Now},
                                    {.title = u"Tick this off to try it"_s, .created = Now}}));
}

void SampleDataTest::restOfTheWorkspace_isEmpty()
{
    const auto data = sampleData(Now, nothing, NoFolder);

    QVERIFY(data.entries.isEmpty());
    QVERIFY(data.shelf.isEmpty());
    QVERIFY(data.notes.isEmpty());
}

void SampleDataTest::ids_areAllDifferent()
{
    const auto data = sampleData(Now, nothing, NoFolder);
    QSet<QUuid> ids;
    for (const auto& client : data.clients) {
        ids << client.id;
    }
    for (const auto& task : data.tasks) {
        ids << task.id;
    }
    for (const auto& item : data.launch) {
        ids << item.id;
    }

    QCOMPARE(ids.size(), 7);
}

void SampleDataTest::launch_withoutApplications_hasTheTwoAddresses()
{
    const auto launch = sampleData(Now, nothing, NoFolder).launch;

    QCOMPARE(launch.size(), 2);
    QCOMPARE(launch[0].name, u"Gmail"_s);
    QVERIFY(launch[0].target.startsWith("https://"_L1));
    QCOMPARE(launch[1].name, u"Calendar"_s);
    QVERIFY(launch[1].target.startsWith("https://"_L1));
}

void SampleDataTest::launch_withAllApplications_hasAllInOrder()
{
    QStringList asked;
    const auto find = [&](const QString& name) -> std::optional<QString> {
        asked << name;
        return u"/usr/share/applications/%1.desktop"_s.arg(name);
    };

    const auto data = sampleData(Now, find, NoFolder);

    QCOMPARE(launchNames(data),
             (QStringList{u"Gmail"_s, u"Calendar"_s, u"VS Code"_s, u"Canva"_s, u"Notion"_s,
                          u"Slack"_s, u"WhatsApp"_s}));
    QCOMPARE(
        asked,
        (QStringList{u"Visual Studio Code"_s, u"Canva"_s, u"Notion"_s, u"Slack"_s, u"WhatsApp"_s}));
    QCOMPARE(data.launch[2].target, u"/usr/share/applications/Visual Studio Code.desktop"_s);
}

void SampleDataTest::launch_missingApplication_isLeftOut()
{
    const auto find = [](const QString& name) {
        return name == u"Slack"_s ? std::nullopt : std::optional(u"/somewhere"_s);
    };

    const auto data = sampleData(Now, find, NoFolder);

    QCOMPARE(launchNames(data),
             (QStringList{u"Gmail"_s, u"Calendar"_s, u"VS Code"_s, u"Canva"_s, u"Notion"_s,
                          u"WhatsApp"_s}));
}

void SampleDataTest::launch_bundle_comesBeforeWhatTheFinderKnows()
{
    const QTemporaryDir folder;
    const auto bundle = folder.filePath(u"Slack.app"_s);
    QVERIFY(QDir().mkpath(bundle));
    const auto find = [](const QString& name) {
        return name == u"Slack"_s ? std::optional(u"/somewhere"_s) : std::nullopt;
    };

    const auto launch = sampleData(Now, find, folder.path()).launch;

    QCOMPARE(launch.size(), 3);
    QCOMPARE(launch.back().target, bundle);
}

void SampleDataTest::launch_withoutFinder_hasTheTwoAddresses()
{
    QCOMPARE(sampleData(Now, {}, NoFolder).launch.size(), 2);
}

QTEST_GUILESS_MAIN(SampleDataTest)
#include "tst_sampledata.moc"
