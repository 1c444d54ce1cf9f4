#include "desktop/desk/desk.h"
#include "support/sendsignal.h"

#include <QRegularExpression>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// Notes in the running program, and what other programs get of them.
class NotesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedNotes_areOnDiskAndBackAfterARestart();
    void halfTypedNotes_surviveACollapse();
    void timestamp_isALineAtTheEnd();
    void copyAll_reachesOtherPrograms_data();
    void copyAll_reachesOtherPrograms();
    void copiedNotes_outliveTheProgram_data();
    void copiedNotes_outliveTheProgram();
    void middleClick_pastesWhatIsSelectedElsewhere();
    void showing_leavesTheFileAsItIs();
};

namespace {

constexpr QPoint Editor{600, 150};
constexpr QPoint CopyAll{1085, 57};
constexpr QPoint InsertTimestamp{1115, 57};

QString notesOf(const Desk& desk)
{
    return desk.data().value("notes"_L1).toString();
}

QByteArray workspaceWith(const QByteArray& notes)
{
    return R"({"clients": [], "entries": [], "launch": [], "notes": ")" + notes
        + R"(", "shelf": [], "tasks": []})";
}

void goToTheNotes(const Desk& desk)
{
    desk.openWithPointer();
    desk.showTab(6);
    desk.click(Editor);
}

/// What another program pastes; nothing while it gets no answer.
QByteArray pasted(Desk& desk, const QString& target = u"UTF8_STRING"_s)
{
    const auto xclip
        = desk.start(u"xclip"_s, {u"-o"_s, u"-selection"_s, u"clipboard"_s, u"-t"_s, target});
    if (!xclip->waitForFinished(3000)) {
        xclip->kill();
        xclip->waitForFinished();
    }
    return xclip->readAllStandardOutput();
}

/// Has another program offer a text, until the desk ends. Nobody offers one before.
void offer(Desk& desk, const QString& selection, const QByteArray& text)
{
    const auto xclip = desk.start(u"xclip"_s, {u"-i"_s, u"-selection"_s, selection});
    xclip->write(text);
    xclip->closeWriteChannel();
    xclip->waitForFinished(); // It goes on in the background.
    desk.waitForOwner(selection.toUpper().toLatin1());
}

} // namespace

void NotesTest::typedNotes_areOnDiskAndBackAfterARestart()
{
    Desk desk;
    auto quib = desk.startQuib();
    goToTheNotes(desk);

    desk.type(u"Call Ann"_s);
    desk.key(u"Return"_s);
    desk.type(u"soon"_s);
    QTRY_COMPARE(notesOf(desk), u"Call Ann\nsoon"_s);
    sendSignal(quib->processId(), SIGTERM);
    QVERIFY(quib->waitForFinished());
    desk.moveTo(Desk::FarAway);
    quib = desk.startQuib();
    goToTheNotes(desk);
    desk.key(u"ctrl+End"_s);
    desk.type(u"er"_s);

    QTRY_COMPARE(notesOf(desk), u"Call Ann\nsooner"_s);
}

void NotesTest::halfTypedNotes_surviveACollapse()
{
    Desk desk;
    const auto quib = desk.startQuib();
    goToTheNotes(desk);
    desk.type(u"half a "_s);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    desk.openWithPointer();
    desk.click(Editor);
    desk.type(u"word"_s);
    QTRY_COMPARE(notesOf(desk), u"half a word"_s);
    desk.key(u"ctrl+z"_s);

    QTRY_VERIFY(notesOf(desk) != u"half a word"_s);
}

void NotesTest::timestamp_isALineAtTheEnd()
{
    Desk desk;
    desk.setVariable(u"LC_ALL"_s, u"en_GB.UTF-8"_s);
    desk.writeData(workspaceWith("Call Ann\\r\\nor Bob"));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(6);

    desk.click(InsertTimestamp);

    QTRY_VERIFY(notesOf(desk).endsWith(u'\n'));
    const QRegularExpression stamped(
        u"^Call Ann\r\nor Bob\n— \\d+ \\w+ \\d{4} at \\d\\d:\\d\\d\n$"_s);
    QVERIFY2(stamped.match(notesOf(desk)).hasMatch(), qPrintable(notesOf(desk)));
}

void NotesTest::copyAll_reachesOtherPrograms_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("expected");

    QTest::addRow("a few lines") << "Call <b>Ann</b>\\nKäse 😀"_ba
                                 << "Call <b>Ann</b>\nKäse 😀"_ba;
    QTest::addRow("nothing") << ""_ba
                             << ""_ba;
    QTest::addRow("a megabyte") << QByteArray(1'000'000, 'w') << QByteArray(1'000'000, 'w');
}

void NotesTest::copyAll_reachesOtherPrograms()
{
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, expected);
    Desk desk;
    desk.writeData(workspaceWith(written));
    offer(desk, u"clipboard"_s, "before");
    QCOMPARE(pasted(desk), "before");
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(6);

    desk.click(CopyAll);

    QTRY_COMPARE(pasted(desk), expected);
    const auto targets = pasted(desk, u"TARGETS"_s);
    QVERIFY2(targets.contains("text/plain") && !targets.contains("html"), targets.constData());
}

void NotesTest::copiedNotes_outliveTheProgram_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::addRow("SIGTERM") << false;
    QTest::addRow("its own end") << true;
}

/// Where the desktop has something that keeps them.
void NotesTest::copiedNotes_outliveTheProgram()
{
    QFETCH(bool, byKey);
    Desk desk;
    desk.writeData(workspaceWith("Call Ann\\nsoon"));
    const auto keeper = desk.start(u"xfce4-clipman"_s);
    QVERIFY(desk.waitForOwner("CLIPBOARD_MANAGER"));
    const auto quib = desk.startQuib();
    goToTheNotes(desk);
    desk.click(CopyAll);
    QTRY_COMPARE(pasted(desk), "Call Ann\nsoon");

    if (byKey) {
        desk.key(u"ctrl+q"_s);
    } else {
        sendSignal(quib->processId(), SIGTERM);
    }
    QVERIFY(quib->waitForFinished());

    QTRY_COMPARE(pasted(desk), "Call Ann\nsoon");
    keeper->terminate();
    keeper->waitForFinished();
}

void NotesTest::middleClick_pastesWhatIsSelectedElsewhere()
{
    Desk desk;
    const auto quib = desk.startQuib();
    offer(desk, u"primary"_s, "Call\r\nAnn");
    goToTheNotes(desk);

    desk.middleClick(Editor);

    QTRY_COMPARE(notesOf(desk), u"Call\nAnn"_s);
}

void NotesTest::showing_leavesTheFileAsItIs()
{
    Desk desk;
    const auto file = workspaceWith(R"(a\rb\r\nc\u0000d\u2028e\u2029f\uFFFCg\u00a0\uFDD0h)");
    desk.writeData(file);
    const auto quib = desk.startQuib();
    goToTheNotes(desk);
    desk.key(u"ctrl+End"_s);
    desk.key(u"ctrl+a"_s);
    desk.key(u"ctrl+c"_s);
    desk.click(CopyAll);
    QTRY_VERIFY(!pasted(desk).isEmpty());
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    sendSignal(quib->processId(), SIGTERM);
    QVERIFY(quib->waitForFinished());

    QFile kept(desk.dataFolder() + u"/data.json"_s);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), file);
}

QTEST_GUILESS_MAIN(NotesTest)
#include "tst_notes.moc"
