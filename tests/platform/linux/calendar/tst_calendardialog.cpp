#include "platform/linux/calendar/consentfile.h"
#include "platform/linux/calendar/permissiondesk.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// With a dialog that stays open once it is asked.
struct AskingDesk : PermissionDesk {
    std::optional<bool> answer;

    AskingDesk()
    {
        startBus();
        dialog->staysOpen = true;
        [[maybe_unused]] const bool isThere = dialog->start(address());
        permission->ask([this](bool isGranted) { answer = isGranted; });
    }
};

} // namespace

/// Who is asked for the word: the dialog of the desktop, or nobody.
class CalendarDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
    void destroyed_whileTheDialogIsOpen();
};

void CalendarDialogTest::ask_dialog_isAnsweredAndKept_data()
{
    QTest::addColumn<uint>("response");
    QTest::addColumn<bool>("isGranted");
    QTest::addColumn<CalendarAuthorization>("kept");

    QTest::addRow("allowed") << 0U << true << CalendarAuthorization::FullAccess;
    QTest::addRow("refused") << 1U << false << CalendarAuthorization::Denied;
    QTest::addRow("closed") << 2U << false << CalendarAuthorization::NotDetermined;
}

void CalendarDialogTest::ask_dialog_isAnsweredAndKept()
{
    QFETCH(const uint, response);
    QFETCH(const bool, isGranted);
    QFETCH(const CalendarAuthorization, kept);
    PermissionDesk session;
    session.startBus();
    session.dialog->response = response;
    QVERIFY(session.dialog->start(session.address()));

    QCOMPARE(session.ask(), isGranted);

    QCOMPARE(session.dialog->shownFor, QStringList(u"org.korvel.Quib"_s));
    session.startAgain();
    QCOMPARE(session.read(), kept);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarDialogTest::ask_noDialog_isTheConsent()
{
    PermissionDesk session;
    session.startBus();

    QCOMPARE(session.ask(), true);

    QCOMPARE(session.read(), CalendarAuthorization::FullAccess);
}

void CalendarDialogTest::ask_ofTheDesktopsOwnDialogFirst()
{
    PermissionDesk session;
    session.startBus();
    qputenv("XDG_CURRENT_DESKTOP", "Foo!:COSMIC");
    FakeDialog own;
    own.response = 1;
    QVERIFY(own.start(session.address(), u"cosmic"_s));
    QVERIFY(session.dialog->start(session.address()));

    QCOMPARE(session.ask(), false);

    QCOMPARE(session.dialog->shownFor, QStringList());
}

void CalendarDialogTest::ask_backendWithoutDialog_isPassedOver()
{
    PermissionDesk session;
    session.startBus();
    auto other = QDBusConnection::connectToBus(session.address(), u"other"_s);
    QVERIFY(other.registerService(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    session.dialog->response = 1;
    QVERIFY(session.dialog->start(session.address(), u"kde"_s));

    const auto isGranted = session.ask();

    QDBusConnection::disconnectFromBus(u"other"_s);
    QCOMPARE(isGranted, false);
}

void CalendarDialogTest::ask_backendThatCannotStart_isPassedOver_data()
{
    QTest::addColumn<QString>("error");

    QTest::addRow("too slow") << u"org.freedesktop.DBus.Error.TimedOut"_s;
    QTest::addRow("no unit") << u"org.freedesktop.systemd1.NoSuchUnit"_s;
    QTest::addRow("masked unit") << u"org.freedesktop.systemd1.UnitMasked"_s;
    QTest::addRow("no program") << u"org.freedesktop.DBus.Error.Spawn.ExecFailed"_s;
}

void CalendarDialogTest::ask_backendThatCannotStart_isPassedOver()
{
    QFETCH(const QString, error);
    PermissionDesk session;
    session.startBus();
    FakeDialog broken;
    broken.failure = error;
    QVERIFY(broken.start(session.address(), u"gtk"_s));
    session.dialog->response = 1;
    QVERIFY(session.dialog->start(session.address(), u"kde"_s));

    QCOMPARE(session.ask(), false);

    QCOMPARE(session.dialog->shownFor.size(), 1);
}

void CalendarDialogTest::ask_desktopWithAStrangeName_isTheConsent_data()
{
    QTest::addColumn<QByteArray>("desktop");

    QTest::addRow("a digit first") << QByteArray("2bwm");
    QTest::addRow("too long for a bus name") << QByteArray(300, 'x');
    QTest::addRow("nothing but colons") << QByteArray(":::");
}

void CalendarDialogTest::ask_desktopWithAStrangeName_isTheConsent()
{
    QFETCH(const QByteArray, desktop);
    PermissionDesk session;
    session.startBus();
    qputenv("XDG_CURRENT_DESKTOP", desktop);

    QCOMPARE(session.ask(), true);
}

void CalendarDialogTest::ask_dialogCrashes_isNotGranted()
{
    AskingDesk session;
    QTRY_COMPARE(session.dialog->shownFor.size(), 1);

    session.dialog.reset();

    QTRY_COMPARE(session.answer, false);
    QCOMPARE(session.read(), CalendarAuthorization::NotDetermined);
}

void CalendarDialogTest::ask_busDies_isNotGranted()
{
    AskingDesk session;
    QTRY_COMPARE(session.dialog->shownFor.size(), 1);

    session.desk.killBus();

    QTRY_COMPARE(session.answer, false);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarDialogTest::ask_twice_showsOneDialog()
{
    PermissionDesk session;
    session.startBus();
    session.dialog->staysOpen = true;
    QVERIFY(session.dialog->start(session.address()));
    int granted = 0;
    session.permission->ask([&granted](bool isGranted) { granted += isGranted; });
    session.permission->ask([&granted](bool isGranted) { granted += isGranted; });
    QTRY_COMPARE(session.dialog->shownFor.size(), 1);

    session.dialog->close(0);

    QTRY_COMPARE(granted, 2);
    QCOMPARE(session.dialog->shownFor.size(), 1);
}

void CalendarDialogTest::destroyed_whileTheDialogIsOpen()
{
    PermissionDesk session;
    session.startBus();
    session.dialog->staysOpen = true;
    QVERIFY(session.dialog->start(session.address()));
    bool isAnswered = false;
    session.permission->ask([&isAnswered](bool) { isAnswered = true; });
    QTRY_COMPARE(session.dialog->shownFor.size(), 1);

    session.permission.reset();
    session.dialog->close(0);
    QVERIFY(session.desk.owns(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    QCoreApplication::processEvents();

    QVERIFY(!isAnswered);
}

QTEST_GUILESS_MAIN(CalendarDialogTest)
#include "tst_calendardialog.moc"
