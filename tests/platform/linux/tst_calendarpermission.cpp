#include "platform/linux/consentfile.h"
#include "platform/linux/permissiondesk.h"

#include <QFile>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

/// Where the user's word is kept: in the permission store, else in a file.
class CalendarPermissionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void read_isAsTheStoreHasIt_data();
    void read_isAsTheStoreHasIt();
    void read_answersLater();
    void read_hungStore_blocksNothing();
    void read_unreadableFile_isUndecided_data();
    void read_unreadableFile_isUndecided();
    void ask_hungStore_isAnswered();
    void ask_noStore_isKeptInAFile_data();
    void ask_noStore_isKeptInAFile();
    void ask_storeThatCannotStart_isKeptInAFile();
    void ask_noBus_isKeptInAFile();
    void deletedPermission_isUndecided();
};

void CalendarPermissionTest::read_isAsTheStoreHasIt_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<CalendarAuthorization>("authorization");

    QTest::addRow("nothing") << QString() << CalendarAuthorization::NotDetermined;
    QTest::addRow("yes") << u"yes"_s << CalendarAuthorization::FullAccess;
    QTest::addRow("no") << u"no"_s << CalendarAuthorization::Denied;
    QTest::addRow("another word") << u"ask"_s << CalendarAuthorization::NotDetermined;
}

void CalendarPermissionTest::read_isAsTheStoreHasIt()
{
    QFETCH(const QString, word);
    QFETCH(const CalendarAuthorization, authorization);
    PermissionDesk f;
    f.startBus();
    if (!word.isEmpty()) {
        f.desk.setPermission(word);
    }

    QCOMPARE(f.read(), authorization);
}

void CalendarPermissionTest::read_answersLater()
{
    PermissionDesk f;
    f.startBus();
    bool isAnswered = false;

    f.permission->read([&isAnswered](CalendarAuthorization) { isAnswered = true; });

    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
}

void CalendarPermissionTest::read_hungStore_blocksNothing()
{
    PermissionDesk f;
    f.startBus();
    f.desk.setPermission(u"yes"_s);
    f.desk.signalTo({CalendarDesk::PermissionStore}, SIGSTOP);
    std::optional<CalendarAuthorization> answer;

    f.permission->read([&answer](CalendarAuthorization authorization) { answer = authorization; });
    QVERIFY(f.desk.owns(CalendarDesk::PermissionStore)); // The bus has had our question by now.
    QCoreApplication::processEvents();
    QVERIFY(!answer);

    f.desk.signalTo({CalendarDesk::PermissionStore}, SIGCONT);
    QTRY_COMPARE(answer, CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::read_unreadableFile_isUndecided_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::addRow("empty") << QByteArray();
    QTest::addRow("another word") << QByteArray("maybe");
    QTest::addRow("more than a word") << QByteArray("yesyesyes");
    QTest::addRow("a megabyte") << QByteArray(1'000'000, 'y');
}

void CalendarPermissionTest::read_unreadableFile_isUndecided()
{
    QFETCH(const QByteArray, bytes);
    PermissionDesk f;
    f.startBus({});
    writeConsent(true);
    QFile file(consentFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    QCOMPARE(f.read(), CalendarAuthorization::NotDetermined);
}

void CalendarPermissionTest::ask_hungStore_isAnswered()
{
    PermissionDesk f;
    f.startBus();
    f.desk.startService(CalendarDesk::PermissionStore);
    f.desk.signalTo({CalendarDesk::PermissionStore}, SIGSTOP);

    QCOMPARE(f.ask(), true);
}

void CalendarPermissionTest::ask_noStore_isKeptInAFile_data()
{
    QTest::addColumn<uint>("response");
    QTest::addColumn<CalendarAuthorization>("kept");
    QTest::addColumn<QByteArray>("word");

    QTest::addRow("allowed") << 0U << CalendarAuthorization::FullAccess << QByteArray("yes");
    QTest::addRow("refused") << 1U << CalendarAuthorization::Denied << QByteArray("no");
    QTest::addRow("closed") << 2U << CalendarAuthorization::NotDetermined << QByteArray();
}

void CalendarPermissionTest::ask_noStore_isKeptInAFile()
{
    QFETCH(const uint, response);
    QFETCH(const QByteArray, word);
    QFETCH(const CalendarAuthorization, kept);
    PermissionDesk f;
    f.startBus({});
    f.dialog->response = response;
    QVERIFY(f.dialog->start(f.address()));

    QCOMPARE(f.ask(), response == 0);

    const auto written = [] {
        QFile file(consentFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(written(), word);
    f.startAgain();
    QCOMPARE(f.read(), kept);
}

void CalendarPermissionTest::ask_storeThatCannotStart_isKeptInAFile()
{
    PermissionDesk f;
    f.desk.makeServiceThatNeverComes(CalendarDesk::PermissionStore);
    f.desk.startBus({}, 200);
    f.startAgain();

    QCOMPARE(f.ask(), true);

    QTRY_VERIFY(QFile::exists(consentFile()));
    QCOMPARE(f.read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::ask_noBus_isKeptInAFile()
{
    PermissionDesk f;
    f.permission = std::make_unique<CalendarPermission>(QDBusConnection(u"none"_s));
    QCOMPARE(f.read(), CalendarAuthorization::NotDetermined);

    QCOMPARE(f.ask(), true);

    QTRY_COMPARE(f.read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::deletedPermission_isUndecided()
{
    PermissionDesk f;
    f.startBus();
    f.dialog->response = 1;
    QVERIFY(f.dialog->start(f.address()));
    QCOMPARE(f.ask(), false);
    QCOMPARE(f.read(), CalendarAuthorization::Denied);

    // What the README tells those who change their mind.
    QProcess undo;
    undo.setProcessEnvironment(f.desk.environment);
    undo.start(u"gdbus"_s,
               {u"call"_s, u"--session"_s, u"--dest"_s, CalendarDesk::PermissionStore,
                u"--object-path"_s, u"/org/freedesktop/impl/portal/PermissionStore"_s,
                u"--method"_s, CalendarDesk::PermissionStore + u".DeletePermission"_s,
                u"calendar"_s, u"events"_s, u"org.korvel.Quib"_s});
    QVERIFY(undo.waitForFinished());
    QCOMPARE(undo.readAllStandardError(), QByteArray());

    QCOMPARE(f.read(), CalendarAuthorization::NotDetermined);
}

QTEST_GUILESS_MAIN(CalendarPermissionTest)
#include "tst_calendarpermission.moc"
