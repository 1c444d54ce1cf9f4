#include "desktop/desk/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What the program says on the console.
class LogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nobodyAsks_itIsSilent();
    void asked_itTellsWhatTheDesktopAnswered();
};

namespace {

constexpr auto Secret = "Zebracrossing"_L1;

void writeSecrets(const Desk& desk)
{
    desk.writeData(R"({"clients": [], "entries": [], "shelf": [], "notes": "Zebracrossing",
        "tasks": [], "launch": [{"id": "00000000-0000-0000-0000-000000000001",
        "name": "Zebracrossing", "target": "/Zebracrossing"}]})");
}

/// All that it printed until its orderly end, after a look at the home tab.
QByteArray printedByAVisit(Desk& desk)
{
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.moveTo(Desk::FarAway);
    desk.waitForExpanded(false);
    quib->terminate();
    quib->waitForFinished();
    return quib->readAllStandardOutput() + quib->readAllStandardError();
}

} // namespace

void LogTest::nobodyAsks_itIsSilent()
{
    Desk desk;
    writeSecrets(desk);

    QCOMPARE(printedByAVisit(desk), QByteArray());
}

void LogTest::asked_itTellsWhatTheDesktopAnswered()
{
    Desk desk;
    writeSecrets(desk);
    desk.setVariable(u"QT_LOGGING_RULES"_s, u"quib.*=true"_s);

    const auto printed = printedByAVisit(desk);

    for (const auto* category : {"quib.window", "quib.media", "quib.calendar", "quib.session"}) {
        QVERIFY2(printed.contains(category), printed.constData());
    }
    QVERIFY2(!printed.contains(Secret.data()), printed.constData());
    QVERIFY2(!printed.contains(desk.dataFolder().toUtf8()), printed.constData());
}

QTEST_GUILESS_MAIN(LogTest)
#include "tst_log.moc"
