#include "desktop/desk/desk.h"
#include "support/modeof.h"
#include "support/writefile.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// As a save leaves it whose process was killed.
constexpr auto Leftover = ".korvel-quib-2147483647-0123456789abcdef"_L1;

QStringList copies()
{
    return {u"data.json.BackUp"_s, u"data.json.MyCopy"_s, u"data.json.OldOne"_s};
}

void put(const Desk& desk, const QStringList& names)
{
    for (const auto& name : names) {
        writeFile(desk.dataFolder() + u'/' + name, "x");
    }
}

bool isThere(const Desk& desk, const QString& name)
{
    return QFile::exists(desk.dataFolder() + u'/' + name);
}

/// Those of the names that are still there.
QStringList remaining(const Desk& desk, const QStringList& names)
{
    QStringList found;
    for (const auto& name : names) {
        found << (isThere(desk, name) ? QStringList{name} : QStringList());
    }
    return found;
}

/// Starts it with that umask.
Program startWithUmask(Desk& desk, const QString& umask)
{
    return desk.startQuib({u"sh"_s, u"-c"_s, u"umask %1; exec \"$0\" \"$@\""_s.arg(umask)});
}

} // namespace

/// What lies beside the data file, and who may read what is there.
class BesideTheDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void start_removesLeftoversAndNothingOfTheUsers();
    void snapshot_removesNothing();
    void secondStart_removesNothing();
    void whatIsNew_isTheUsersAlone();
    void whatIsThere_keepsItsMode();
};

void BesideTheDataTest::start_removesLeftoversAndNothingOfTheUsers()
{
    Desk desk;
    put(desk, copies() << Leftover);

    const auto quib = desk.startQuib();

    QTRY_VERIFY(!isThere(desk, Leftover));
    QCOMPARE(remaining(desk, copies()), copies());
}

void BesideTheDataTest::snapshot_removesNothing()
{
    Desk desk;
    const auto names = copies() << Leftover;
    put(desk, names);

    QCOMPARE(desk.runQuib({u"--snapshot"_s, desk.folder(u"runtime"_s)}), 0);

    QVERIFY(QFile::exists(desk.folder(u"runtime/home.png"_s)));
    QCOMPARE(remaining(desk, names), names);
}

void BesideTheDataTest::secondStart_removesNothing()
{
    Desk desk;
    const auto quib = desk.startQuib();
    const auto names = copies() << Leftover;
    put(desk, names);

    QCOMPARE(desk.runQuib(), 0);

    QVERIFY(desk.waitForExpanded(true));
    QCOMPARE(remaining(desk, names), names);
}

void BesideTheDataTest::whatIsNew_isTheUsersAlone()
{
    Desk desk;
    desk.setVariable(u"QUIB_DATA_DIR"_s, desk.folder(u"data/of/mine"_s));
    const auto quib = startWithUmask(desk, u"0"_s);
    const auto file = desk.folder(u"data/of/mine/data.json"_s);

    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::TaskField);
    desk.type(u"Private"_s);
    desk.key(u"Return"_s);
    QTRY_VERIFY(QFile::exists(file));

    QCOMPARE(modeOf(file), "0600"_ba);
    QCOMPARE(modeOf(desk.folder(u"data/of/mine/shortcuts.json"_s)), "0600"_ba);
    for (const auto* folder : {"data", "data/of", "data/of/mine"}) {
        QCOMPARE(modeOf(desk.folder(QString::fromLatin1(folder))), "0700"_ba);
    }
    const QDir runtime(desk.folder(u"runtime"_s));
    const auto held = runtime.entryInfoList({u"org.korvel.Quib*"_s}, QDir::Files | QDir::System);
    QCOMPARE(held.size(), 2);
    for (const auto& entry : held) {
        QCOMPARE(modeOf(entry.filePath()), "0600"_ba);
    }
}

void BesideTheDataTest::whatIsThere_keepsItsMode()
{
    Desk desk;
    desk.writeData("{}"); // Is replaced by the sample data at the first change.
    const auto file = desk.dataFolder() + u"/data.json"_s;
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    QVERIFY(QFile::setPermissions(desk.dataFolder(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                      | QFile::ReadGroup | QFile::ExeGroup));
    const auto quib = startWithUmask(desk, u"077"_s);

    desk.addTask(u"Shared"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Shared"_s);

    QCOMPARE(modeOf(file), "0640"_ba);
    QCOMPARE(modeOf(desk.dataFolder()), "0750"_ba);
}

QTEST_GUILESS_MAIN(BesideTheDataTest)
#include "tst_besidethedata.moc"
