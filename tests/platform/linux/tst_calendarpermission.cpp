#include "platform/linux/calendardesk.h"
#include "platform/linux/calendarpermission.h"
#include "platform/linux/consentfile.h"
#include "platform/linux/fakedialog.h"

#include <QFile>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

class CalendarPermissionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void read_isAsTheStoreHasIt_data();
    void read_isAsTheStoreHasIt();
    void read_answersLater();
    void read_hungStore_blocksNothing();
    void ask_dialog_isAnsweredAndKept_data();
    void ask_dialog_isAnsweredAndKept();
    void ask_noDialog_isTheConsent();
    void ask_ofTheDesktopsOwnDialogFirst();
    void ask_backendWithoutDialog_isPassedOver();
    void ask_backendThatCannotStart_isPassedOver_data();
    void ask_backendThatCannotStart_isPassedOver();
    void ask_desktopWithAStrangeName_isTheConsent_data();
    void ask_desktopWithAStrangeName_isTheConsent();
    void ask_dialogCrashes_isNotGranted();
    void ask_busDies_isNotGranted();
    void ask_twice_showsOneDialog();
    void ask_hungStore_isAnswered();
    void ask_noStore_isKeptInAFile_data();
    void ask_noStore_isKeptInAFile();
    void ask_storeThatCannotStart_isKeptInAFile();
    void ask_noBus_isKeptInAFile();
    void read_unreadableFile_isUndecided_data();
    void read_unreadableFile_isUndecided();
    void deletedPermission_isUndecided();
    void destroyed_whileTheDialogIsOpen();

private:
    void startBus(const QStringList& services = {CalendarDesk::PermissionStore});
    std::optional<CalendarAuthorization> read() const;
    std::optional<bool> ask() const;
    QString address() const;

    std::unique_ptr<CalendarDesk> m_desk;
    std::unique_ptr<FakeDialog> m_dialog;
    std::unique_ptr<CalendarPermission> m_permission;
};

void CalendarPermissionTest::init()
{
    m_desk = std::make_unique<CalendarDesk>();
    m_dialog = std::make_unique<FakeDialog>();
    qputenv("XDG_CONFIG_HOME", m_desk->path(u"config"_s).toUtf8());
    qunsetenv("XDG_CURRENT_DESKTOP");
}

void CalendarPermissionTest::cleanup()
{
    m_permission.reset();
    m_dialog.reset();
    m_desk.reset();
}

void CalendarPermissionTest::startBus(const QStringList& services)
{
    m_desk->startBus(services);
    m_permission = std::make_unique<CalendarPermission>(m_desk->bus());
}

QString CalendarPermissionTest::address() const
{
    return m_desk->environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s);
}

std::optional<CalendarAuthorization> CalendarPermissionTest::read() const
{
    std::optional<CalendarAuthorization> answer;
    m_permission->read([&answer](CalendarAuthorization authorization) { answer = authorization; });
    return QTest::qWaitFor([&answer] { return answer.has_value(); }) ? answer : std::nullopt;
}

std::optional<bool> CalendarPermissionTest::ask() const
{
    std::optional<bool> answer;
    m_permission->ask([&answer](bool isGranted) { answer = isGranted; });
    return QTest::qWaitFor([&answer] { return answer.has_value(); }) ? answer : std::nullopt;
}

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
    startBus();
    if (!word.isEmpty()) {
        m_desk->setPermission(word);
    }

    QCOMPARE(read(), authorization);
}

void CalendarPermissionTest::read_answersLater()
{
    startBus();
    bool isAnswered = false;

    m_permission->read([&isAnswered](CalendarAuthorization) { isAnswered = true; });

    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
}

void CalendarPermissionTest::read_hungStore_blocksNothing()
{
    startBus();
    m_desk->setPermission(u"yes"_s);
    m_desk->signalTo({CalendarDesk::PermissionStore}, SIGSTOP);
    std::optional<CalendarAuthorization> answer;

    m_permission->read([&answer](CalendarAuthorization authorization) { answer = authorization; });
    QVERIFY(m_desk->owns(CalendarDesk::PermissionStore)); // The bus has had our question by now.
    QCoreApplication::processEvents();
    QVERIFY(!answer);

    m_desk->signalTo({CalendarDesk::PermissionStore}, SIGCONT);
    QTRY_COMPARE(answer, CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::ask_dialog_isAnsweredAndKept_data()
{
    QTest::addColumn<uint>("response");
    QTest::addColumn<bool>("isGranted");
    QTest::addColumn<CalendarAuthorization>("kept");

    QTest::addRow("allowed") << 0U << true << CalendarAuthorization::FullAccess;
    QTest::addRow("refused") << 1U << false << CalendarAuthorization::Denied;
    QTest::addRow("closed") << 2U << false << CalendarAuthorization::NotDetermined;
}

void CalendarPermissionTest::ask_dialog_isAnsweredAndKept()
{
    QFETCH(const uint, response);
    QFETCH(const bool, isGranted);
    QFETCH(const CalendarAuthorization, kept);
    startBus();
    m_dialog->response = response;
    QVERIFY(m_dialog->start(address()));

    QCOMPARE(ask(), isGranted);

    QCOMPARE(m_dialog->shownFor, QStringList(u"org.korvel.Quib"_s));
    m_permission = std::make_unique<CalendarPermission>(m_desk->bus());
    QCOMPARE(read(), kept);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarPermissionTest::ask_noDialog_isTheConsent()
{
    startBus();

    QCOMPARE(ask(), true);

    QCOMPARE(read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::ask_ofTheDesktopsOwnDialogFirst()
{
    startBus();
    qputenv("XDG_CURRENT_DESKTOP", "Foo!:COSMIC");
    FakeDialog own;
    own.response = 1;
    QVERIFY(own.start(address(), u"cosmic"_s));
    QVERIFY(m_dialog->start(address()));

    QCOMPARE(ask(), false);

    QCOMPARE(m_dialog->shownFor, QStringList());
}

void CalendarPermissionTest::ask_backendWithoutDialog_isPassedOver()
{
    startBus();
    auto other = QDBusConnection::connectToBus(address(), u"other"_s);
    QVERIFY(other.registerService(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    m_dialog->response = 1;
    QVERIFY(m_dialog->start(address(), u"kde"_s));

    const auto isGranted = ask();

    QDBusConnection::disconnectFromBus(u"other"_s);
    QCOMPARE(isGranted, false);
}

void CalendarPermissionTest::ask_backendThatCannotStart_isPassedOver_data()
{
    QTest::addColumn<QString>("error");

    QTest::addRow("too slow") << u"org.freedesktop.DBus.Error.TimedOut"_s;
    QTest::addRow("no unit") << u"org.freedesktop.systemd1.NoSuchUnit"_s;
    QTest::addRow("masked unit") << u"org.freedesktop.systemd1.UnitMasked"_s;
    QTest::addRow("no program") << u"org.freedesktop.DBus.Error.Spawn.ExecFailed"_s;
}

void CalendarPermissionTest::ask_backendThatCannotStart_isPassedOver()
{
    QFETCH(const QString, error);
    startBus();
    FakeDialog broken;
    broken.failure = error;
    QVERIFY(broken.start(address(), u"gtk"_s));
    m_dialog->response = 1;
    QVERIFY(m_dialog->start(address(), u"kde"_s));

    QCOMPARE(ask(), false);

    QCOMPARE(m_dialog->shownFor.size(), 1);
}

void CalendarPermissionTest::ask_desktopWithAStrangeName_isTheConsent_data()
{
    QTest::addColumn<QByteArray>("desktop");

    QTest::addRow("a digit first") << QByteArray("2bwm");
    QTest::addRow("too long for a bus name") << QByteArray(300, 'x');
    QTest::addRow("nothing but colons") << QByteArray(":::");
}

void CalendarPermissionTest::ask_desktopWithAStrangeName_isTheConsent()
{
    QFETCH(const QByteArray, desktop);
    startBus();
    qputenv("XDG_CURRENT_DESKTOP", desktop);

    QCOMPARE(ask(), true);
}

void CalendarPermissionTest::ask_dialogCrashes_isNotGranted()
{
    startBus();
    m_dialog->staysOpen = true;
    QVERIFY(m_dialog->start(address()));
    std::optional<bool> answer;
    m_permission->ask([&answer](bool isGranted) { answer = isGranted; });
    QTRY_COMPARE(m_dialog->shownFor.size(), 1);

    m_dialog.reset();

    QTRY_COMPARE(answer, false);
    QCOMPARE(read(), CalendarAuthorization::NotDetermined);
}

void CalendarPermissionTest::ask_busDies_isNotGranted()
{
    startBus();
    m_dialog->staysOpen = true;
    QVERIFY(m_dialog->start(address()));
    std::optional<bool> answer;
    m_permission->ask([&answer](bool isGranted) { answer = isGranted; });
    QTRY_COMPARE(m_dialog->shownFor.size(), 1);

    m_desk->killBus();

    QTRY_COMPARE(answer, false);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarPermissionTest::ask_twice_showsOneDialog()
{
    startBus();
    m_dialog->staysOpen = true;
    QVERIFY(m_dialog->start(address()));
    int granted = 0;
    m_permission->ask([&granted](bool isGranted) { granted += isGranted; });
    m_permission->ask([&granted](bool isGranted) { granted += isGranted; });
    QTRY_COMPARE(m_dialog->shownFor.size(), 1);

    m_dialog->close(0);

    QTRY_COMPARE(granted, 2);
    QCOMPARE(m_dialog->shownFor.size(), 1);
}

void CalendarPermissionTest::ask_hungStore_isAnswered()
{
    startBus();
    m_desk->startService(CalendarDesk::PermissionStore);
    m_desk->signalTo({CalendarDesk::PermissionStore}, SIGSTOP);

    QCOMPARE(ask(), true);
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
    startBus({});
    m_dialog->response = response;
    QVERIFY(m_dialog->start(address()));

    QCOMPARE(ask(), response == 0);

    const auto written = [] {
        QFile file(consentFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(written(), word);
    m_permission = std::make_unique<CalendarPermission>(m_desk->bus());
    QCOMPARE(read(), kept);
}

void CalendarPermissionTest::ask_storeThatCannotStart_isKeptInAFile()
{
    m_desk->makeServiceThatNeverComes(CalendarDesk::PermissionStore);
    m_desk->startBus({}, 200);
    m_permission = std::make_unique<CalendarPermission>(m_desk->bus());

    QCOMPARE(ask(), true);

    QTRY_VERIFY(QFile::exists(consentFile()));
    QCOMPARE(read(), CalendarAuthorization::FullAccess);
}

void CalendarPermissionTest::ask_noBus_isKeptInAFile()
{
    m_permission = std::make_unique<CalendarPermission>(QDBusConnection(u"none"_s));
    QCOMPARE(read(), CalendarAuthorization::NotDetermined);

    QCOMPARE(ask(), true);

    QTRY_COMPARE(read(), CalendarAuthorization::FullAccess);
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
    startBus({});
    writeConsent(true);
    QFile file(consentFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    QCOMPARE(read(), CalendarAuthorization::NotDetermined);
}

void CalendarPermissionTest::deletedPermission_isUndecided()
{
    startBus();
    m_dialog->response = 1;
    QVERIFY(m_dialog->start(address()));
    QCOMPARE(ask(), false);
    QCOMPARE(read(), CalendarAuthorization::Denied);

    // What the README tells those who change their mind.
    QProcess undo;
    undo.setProcessEnvironment(m_desk->environment);
    undo.start(u"gdbus"_s,
               {u"call"_s, u"--session"_s, u"--dest"_s, CalendarDesk::PermissionStore,
                u"--object-path"_s, u"/org/freedesktop/impl/portal/PermissionStore"_s,
                u"--method"_s, CalendarDesk::PermissionStore + u".DeletePermission"_s,
                u"calendar"_s, u"events"_s, u"org.korvel.Quib"_s});
    QVERIFY(undo.waitForFinished());
    QCOMPARE(undo.readAllStandardError(), QByteArray());

    QCOMPARE(read(), CalendarAuthorization::NotDetermined);
}

void CalendarPermissionTest::destroyed_whileTheDialogIsOpen()
{
    startBus();
    m_dialog->staysOpen = true;
    QVERIFY(m_dialog->start(address()));
    bool isAnswered = false;
    m_permission->ask([&isAnswered](bool) { isAnswered = true; });
    QTRY_COMPARE(m_dialog->shownFor.size(), 1);

    m_permission.reset();
    m_dialog->close(0);
    QVERIFY(m_desk->owns(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    QCoreApplication::processEvents();

    QVERIFY(!isAnswered);
}

QTEST_GUILESS_MAIN(CalendarPermissionTest)
#include "tst_calendarpermission.moc"
