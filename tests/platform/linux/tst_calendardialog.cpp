#include "platform/linux/consentfile.h"
#include "platform/linux/permissiondesk.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace quib;

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
    PermissionDesk f;
    f.startBus();
    f.dialog->response = response;
    QVERIFY(f.dialog->start(f.address()));

    QCOMPARE(f.ask(), isGranted);

    QCOMPARE(f.dialog->shownFor, QStringList(u"org.korvel.Quib"_s));
    f.startAgain();
    QCOMPARE(f.read(), kept);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarDialogTest::ask_noDialog_isTheConsent()
{
    PermissionDesk f;
    f.startBus();

    QCOMPARE(f.ask(), true);

    QCOMPARE(f.read(), CalendarAuthorization::FullAccess);
}

void CalendarDialogTest::ask_ofTheDesktopsOwnDialogFirst()
{
    PermissionDesk f;
    f.startBus();
    qputenv("XDG_CURRENT_DESKTOP", "Foo!:COSMIC");
    FakeDialog own;
    own.response = 1;
    QVERIFY(own.start(f.address(), u"cosmic"_s));
    QVERIFY(f.dialog->start(f.address()));

    QCOMPARE(f.ask(), false);

    QCOMPARE(f.dialog->shownFor, QStringList());
}

void CalendarDialogTest::ask_backendWithoutDialog_isPassedOver()
{
    PermissionDesk f;
    f.startBus();
    auto other = QDBusConnection::connectToBus(f.address(), u"other"_s);
    QVERIFY(other.registerService(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    f.dialog->response = 1;
    QVERIFY(f.dialog->start(f.address(), u"kde"_s));

    const auto isGranted = f.ask();

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
    PermissionDesk f;
    f.startBus();
    FakeDialog broken;
    broken.failure = error;
    QVERIFY(broken.start(f.address(), u"gtk"_s));
    f.dialog->response = 1;
    QVERIFY(f.dialog->start(f.address(), u"kde"_s));

    QCOMPARE(f.ask(), false);

    QCOMPARE(f.dialog->shownFor.size(), 1);
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
    PermissionDesk f;
    f.startBus();
    qputenv("XDG_CURRENT_DESKTOP", desktop);

    QCOMPARE(f.ask(), true);
}

void CalendarDialogTest::ask_dialogCrashes_isNotGranted()
{
    PermissionDesk f;
    f.startBus();
    f.dialog->staysOpen = true;
    QVERIFY(f.dialog->start(f.address()));
    std::optional<bool> answer;
    f.permission->ask([&answer](bool isGranted) { answer = isGranted; });
    QTRY_COMPARE(f.dialog->shownFor.size(), 1);

    f.dialog.reset();

    QTRY_COMPARE(answer, false);
    QCOMPARE(f.read(), CalendarAuthorization::NotDetermined);
}

void CalendarDialogTest::ask_busDies_isNotGranted()
{
    PermissionDesk f;
    f.startBus();
    f.dialog->staysOpen = true;
    QVERIFY(f.dialog->start(f.address()));
    std::optional<bool> answer;
    f.permission->ask([&answer](bool isGranted) { answer = isGranted; });
    QTRY_COMPARE(f.dialog->shownFor.size(), 1);

    f.desk.killBus();

    QTRY_COMPARE(answer, false);
    QVERIFY(!QFile::exists(consentFile()));
}

void CalendarDialogTest::ask_twice_showsOneDialog()
{
    PermissionDesk f;
    f.startBus();
    f.dialog->staysOpen = true;
    QVERIFY(f.dialog->start(f.address()));
    int granted = 0;
    f.permission->ask([&granted](bool isGranted) { granted += isGranted; });
    f.permission->ask([&granted](bool isGranted) { granted += isGranted; });
    QTRY_COMPARE(f.dialog->shownFor.size(), 1);

    f.dialog->close(0);

    QTRY_COMPARE(granted, 2);
    QCOMPARE(f.dialog->shownFor.size(), 1);
}

void CalendarDialogTest::destroyed_whileTheDialogIsOpen()
{
    PermissionDesk f;
    f.startBus();
    f.dialog->staysOpen = true;
    QVERIFY(f.dialog->start(f.address()));
    bool isAnswered = false;
    f.permission->ask([&isAnswered](bool) { isAnswered = true; });
    QTRY_COMPARE(f.dialog->shownFor.size(), 1);

    f.permission.reset();
    f.dialog->close(0);
    QVERIFY(f.desk.owns(u"org.freedesktop.impl.portal.desktop.gtk"_s));
    QCoreApplication::processEvents();

    QVERIFY(!isAnswered);
}

QTEST_GUILESS_MAIN(CalendarDialogTest)
#include "tst_calendardialog.moc"
