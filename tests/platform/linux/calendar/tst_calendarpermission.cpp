#include "platform/linux/calendar/consentfile.h"
#include "platform/linux/calendar/permissiondesk.h"
#include "support/bytesof.h"
#include "support/modeof.h"
#include "support/umask.h"

#include <QFile>
#include <QFileInfo>

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
    void file_isTheUsersAlone();
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
    PermissionDesk session;
    session.startBus();
    if (!word.isEmpty()) {
        session.desk.setPermission(word);
    }

    QCOMPARE(session.read(), authorization);
}

void CalendarPermissionTest::read_answersLater()
{
    PermissionDesk session;
    session.startBus();
    bool isAnswered = false;

    session.permission->read([&isAnswered](CalendarAuthorization) { isAnswered = true; });

    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
}

void CalendarPermissionTest::read_hungStore_blocksNothing()
{
    PermissionDesk session;
    session.startBus();
    session.desk.setPermission(u"yes"_s);
    session.desk.signalTo({CalendarDesk::PermissionStore}, SIGSTOP);
    std::optional<CalendarAuthorization> answer;

    session.permission->read(
        [&answer](CalendarAuthorization authorization) { answer = authorization; });
    QVERIFY(
        session.desk.owns(CalendarDesk::PermissionStore)); // The bus has had our question by now.
    QCoreApplication::processEvents();
    QVERIFY(!answer);

    session.desk.signalTo({CalendarDesk::PermissionStore}, SIGCONT);
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
    PermissionDesk session;
    session.startBus({});
    writeConsent(true);
    QFile file(consentFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    QCOMPARE(session.read(), CalendarAuthorization::NotDetermined);
}

void CalendarPermissionTest::file_isTheUsersAlone()
{
    const PermissionDesk session;
    {
        const Umask lax(0);
        writeConsent(true);
    }

    QCOMPARE(modeOf(consentFile()), "0600"_ba);
    QCOMPARE(modeOf(QFileInfo(consentFile()).path()), "0700"_ba);
}

void CalendarPermissionTest::ask_hungStore_isAnswered()
{
    PermissionDesk session;
    session.startBus();
    session.desk.startService(CalendarDesk::PermissionStore);
    session.desk.signalTo({CalendarDesk::PermissionStore}, SIGSTOP);

    QCOMPARE(session.ask(), true);
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
    PermissionDesk session;
    session.startBus({});
    session.dialog->response = response;
    QVERIFY(session.dialog->start(session.address()));

    QCOMPARE(session.ask(), response == 0);

    QTRY_COMPARE(bytesOf(consentFile()), word);
    session.startAgain();
    QCOMPARE(session.read(), kept);
}

void CalendarPermissionTest::ask_storeThatCannotStart_isKeptInAFile()
{
    PermissionDesk session;
    session.desk.makeServiceThatNeverComes(CalendarDesk::PermissionStore);
    session.desk.startBus({}, 200);
    session.startAgain();

    QCOMPARE(session.ask(), true);

    QTRY_VERIFY(QFile::exists(consentFile()));
    QCOMPARE(session.read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::ask_noBus_isKeptInAFile()
{
    PermissionDesk session;
    session.permission
        = std::make_unique<CalendarPermission>(std::make_shared<SessionBus>(QString()));
    QCOMPARE(session.read(), CalendarAuthorization::NotDetermined);

    QCOMPARE(session.ask(), true);

    QTRY_COMPARE(session.read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::deletedPermission_isUndecided()
{
    PermissionDesk session;
    session.startBus();
    session.dialog->response = 1;
    QVERIFY(session.dialog->start(session.address()));
    QCOMPARE(session.ask(), false);
    QCOMPARE(session.read(), CalendarAuthorization::Denied);

    // What the README tells those who change their mind.
    QProcess undo;
    undo.setProcessEnvironment(session.desk.environment);
    undo.start(u"gdbus"_s,
               {u"call"_s, u"--session"_s, u"--dest"_s, CalendarDesk::PermissionStore,
                u"--object-path"_s, u"/org/freedesktop/impl/portal/PermissionStore"_s,
                u"--method"_s, CalendarDesk::PermissionStore + u".DeletePermission"_s,
                u"calendar"_s, u"events"_s, u"org.korvel.Quib"_s});
    QVERIFY(undo.waitForFinished());
    QCOMPARE(undo.readAllStandardError(), QByteArray());

    QCOMPARE(session.read(), CalendarAuthorization::NotDetermined);
}

QTEST_GUILESS_MAIN(CalendarPermissionTest)
#include "tst_calendarpermission.moc"
