#include "desktop/wayland/waylanddesk.h"

#include <QDir>
#include <QTest>

using Kind = WaylandDesk::Kind;
using namespace Qt::StringLiterals;

namespace {

/// How often the threads of a program have gone to sleep, and so been woken.
qint64 wakeups(qint64 process)
{
    const QDir threads(u"/proc/%1/task"_s.arg(process));
    qint64 sum = 0;
    for (const auto& name : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(threads.filePath(name + u"/status"_s));
        if (!status.open(QIODevice::ReadOnly)) {
            continue;
        }
        for (const auto& line : status.readAll().split('\n')) {
            if (line.startsWith("voluntary_ctxt_switches:")) {
                sum += line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
            }
        }
    }
    return sum;
}

/// Whether a span of three seconds comes in which nothing runs. What has just been done may go on
/// for some time, and now and then a desktop tells something to all.
bool comesToRest(const QProcess& program)
{
    for (int span = 0; span < 5; ++span) {
        const auto before = wakeups(program.processId());
        QTest::qWait(3000);
        if (before > 0 && wakeups(program.processId()) == before) {
            return true;
        }
    }
    return false;
}

} // namespace

/// What nobody looks at costs nothing.
class WaylandRestTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void collapsedPanel_isNeverWoken_data() { addCompositors(); }
    void collapsedPanel_isNeverWoken();
};

void WaylandRestTest::collapsedPanel_isNeverWoken()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    const auto quib = desk.startQuib();
    QVERIFY(comesToRest(*quib));

    desk.openWithPointer();
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    QVERIFY(comesToRest(*quib));
}

QTEST_GUILESS_MAIN(WaylandRestTest)
#include "tst_waylandrest.moc"
