#include "desk.h"
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

} // namespace

/// What lies beside the data file.
class BesideTheDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void start_removesLeftoversAndNothingOfTheUsers();
    void snapshot_removesNothing();
    void secondStart_removesNothing();
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

QTEST_GUILESS_MAIN(BesideTheDataTest)
#include "tst_besidethedata.moc"
