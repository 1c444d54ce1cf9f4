#include "model/time/utc.h"
#include "support/panel/notestab.h"
#include "support/toldtext.h"

#include <QMimeData>

using namespace Qt::StringLiterals;

/// The notes as their user meets them: what is written, stamped and copied.
class NotesViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typing_isInTheStoreAtEachKey();
    void typing_isSavedOnce();
    void placeholder_showsWhileThereIsNothing();
    void placeholder_isWhereTheFirstLetterComes();
    void placeholder_letsClicksThrough();
    void keys_comeToTheNotesFirst();
    void showing_changesNothing_data();
    void showing_changesNothing();
    void copyAll_putsPlainTextOnTheClipboard_data();
    void copyAll_putsPlainTextOnTheClipboard();
    void copyAll_leavesTheNotesAlone();
    void stamp_goesToTheEndOnALineOfItsOwn_data();
    void stamp_goesToTheEndOnALineOfItsOwn();
    void stamp_isInTheUsersTimeAndSaved();
    void stamp_leavesWhatIsThereToTheLetter();
    void names_tellWhatPressingDoes();
    void everyKeyButTab_isAnEdit();
};

namespace {

const auto Stamp = u"— Mar 2, 2026 at 9:00\u202FAM\n"_s;
const auto Odd = u"a\rb\r\nc"_s + QChar::Null + u"\u2028d\u2029e\u00a0f\tg\uFFFC"_s;

} // namespace

void NotesViewTest::typing_isInTheStoreAtEachKey()
{
    const NotesTab tab;

    tab.type(u"a"_s);
    QCOMPARE(tab.notes(), u"a"_s);
    tab.press(Qt::Key_Return);
    QCOMPARE(tab.notes(), u"a\n"_s);
    tab.type(u"b"_s);
    QCOMPARE(tab.notes(), u"a\nb"_s);
    tab.press(Qt::Key_Backspace);

    QCOMPARE(tab.notes(), u"a\n"_s);
}

void NotesViewTest::typing_isSavedOnce()
{
    NotesTab tab;
    const int before = tab.hands.ran;

    tab.type(u"Call Ann"_s);
    tab.hands.advance(std::chrono::milliseconds(399));
    QCOMPARE(tab.hands.ran, before);
    tab.hands.advance(std::chrono::milliseconds(1));
    tab.store().saveNow();

    QCOMPARE(tab.hands.ran, before + 1);
    QCOMPARE(quib::Store().notes(), u"Call Ann"_s);
}

void NotesViewTest::placeholder_showsWhileThereIsNothing()
{
    const NotesTab tab;
    QVERIFY(tab.placeholder()->isVisible());

    tab.type(u"a"_s);
    QVERIFY(!tab.placeholder()->isVisible());
    tab.press(Qt::Key_Backspace);
    QVERIFY(tab.placeholder()->isVisible());
    tab.press(Qt::Key_Return);
    QVERIFY(!tab.placeholder()->isVisible());
    tab.store().setNotes({});

    QVERIFY(tab.placeholder()->isVisible());
}

void NotesViewTest::placeholder_isWhereTheFirstLetterComes()
{
    const NotesTab tab;

    QCOMPARE(textOf(tab.placeholder()), u"Call notes, ideas, client requests…"_s);
    QCOMPARE(inScene(tab.placeholder()).topLeft(), tab.place(0).topLeft());
}

void NotesViewTest::placeholder_letsClicksThrough()
{
    const NotesTab tab;
    tab.item(u"copyAll"_s)->forceActiveFocus();
    QCOMPARE(tab.focused(), u"copyAll"_s);

    QTest::mouseClick(tab.window.get(), Qt::LeftButton, {},
                      inScene(tab.placeholder()).center().toPoint());

    QVERIFY(tab.isEditing());
}

void NotesViewTest::keys_comeToTheNotesFirst()
{
    const NotesTab tab;

    QVERIFY(tab.isEditing());
}

void NotesViewTest::showing_changesNothing_data()
{
    QTest::addColumn<QString>("notes");

    QTest::addRow("all at once") << Odd;
    QTest::addRow("carriage returns") << u"a\rb\r"_s;
    QTest::addRow("line ends of another system") << u"a\r\nb\r\n"_s;
    QTest::addRow("a NUL") << u"a"_s + QChar::Null + u"b"_s;
    QTest::addRow("line and paragraph separators") << u"a\u2028b\u2029c"_s;
    QTest::addRow("a place for an object") << u"a\uFFFCb"_s;
    QTest::addRow("what Qt keeps for frames") << u"a\uFDD0b\uFDD1c"_s;
    QTest::addRow("half a letter") << u"a"_s + QChar(0xD83D) + u"b"_s + QChar(0xDE00);
    QTest::addRow("a byte order mark") << u"\uFEFFa"_s;
    QTest::addRow("markup") << u"<b>a</b>&amp;"_s;
}

void NotesViewTest::showing_changesNothing()
{
    QFETCH(QString, notes);
    NotesTab tab(notes);
    const QSignalSpy changes(&tab.store(), &quib::Store::notesChanged);

    tab.press(Qt::Key_Right);
    tab.press(Qt::Key_End, Qt::ControlModifier);
    tab.press(Qt::Key_A, Qt::ControlModifier);
    tab.press(Qt::Key_C, Qt::ControlModifier);
    tab.copyAll();
    tab.model.setTab(quib::Tab::Tasks);
    tab.model.setTab(quib::Tab::Notes);
    tab.model.setExpanded(false);
    tab.settle();
    tab.model.setExpanded(true);
    tab.settle();
    tab.store().addTask(u"Call"_s, {});

    QCOMPARE(changes.count(), 0);
    QCOMPARE(tab.notes(), notes);
}

void NotesViewTest::copyAll_putsPlainTextOnTheClipboard_data()
{
    QTest::addColumn<QString>("notes");

    QTest::addRow("two lines") << u"Call Ann\n<b>soon</b>"_s;
    QTest::addRow("nothing") << QString();
    QTest::addRow("odd ones") << Odd;
}

void NotesViewTest::copyAll_putsPlainTextOnTheClipboard()
{
    QFETCH(QString, notes);
    const NotesTab tab(notes);
    QGuiApplication::clipboard()->setText(u"before"_s);

    tab.copyAll();

    QCOMPARE(QGuiApplication::clipboard()->text(), notes);
    QCOMPARE(QGuiApplication::clipboard()->mimeData()->formats(), QStringList{u"text/plain"_s});
}

void NotesViewTest::copyAll_leavesTheNotesAlone()
{
    const NotesTab tab(u"Call Ann"_s);
    tab.press(Qt::Key_Right);
    tab.press(Qt::Key_Right, Qt::ShiftModifier);

    tab.copyAll();

    QCOMPARE(tab.selected(), u"a"_s);
    QVERIFY(tab.isEditing());
    QCOMPARE(tab.notes(), u"Call Ann"_s);
}

void NotesViewTest::stamp_goesToTheEndOnALineOfItsOwn_data()
{
    QTest::addColumn<QString>("notes");
    QTest::addColumn<QString>("stamped");

    QTest::addRow("nothing yet") << QString() << Stamp;
    QTest::addRow("a letter last") << u"Call Ann"_s << u"Call Ann\n"_s + Stamp;
    QTest::addRow("a line feed last") << u"Call Ann\n"_s << u"Call Ann\n"_s + Stamp;
}

void NotesViewTest::stamp_goesToTheEndOnALineOfItsOwn()
{
    QFETCH(QString, notes);
    const NotesTab tab(notes);

    tab.stamp();

    QTEST(tab.notes(), "stamped");
    QTEST(textOf(tab.input()), "stamped");
}

void NotesViewTest::stamp_isInTheUsersTimeAndSaved()
{
    NotesTab tab;
    tab.hands.now = QDateTime(QDate(2026, 11, 15), QTime(21, 41), quib::Utc);

    tab.stamp();
    tab.store().saveNow();

    QCOMPARE(quib::Store().notes(), u"— Nov 15, 2026 at 9:41\u202FPM\n"_s);
}

void NotesViewTest::stamp_leavesWhatIsThereToTheLetter()
{
    const NotesTab tab(Odd);

    tab.stamp();
    tab.stamp();

    QCOMPARE(tab.notes(), Odd + u'\n' + Stamp + Stamp);
}

void NotesViewTest::names_tellWhatPressingDoes()
{
    const NotesTab tab;

    QCOMPARE(toldOf(tab.item(u"copyAll"_s)), u"Copy all"_s);
    QCOMPARE(toldOf(tab.item(u"insertTimestamp"_s)), u"Insert timestamp"_s);
    QCOMPARE(toldOf(tab.input()), u"Call notes, ideas, client requests…"_s);
}

void NotesViewTest::everyKeyButTab_isAnEdit()
{
    const NotesTab tab;

    tab.press(Qt::Key_Tab);

    QCOMPARE(tab.notes(), QString());
    QVERIFY(!tab.isEditing());
    tab.press(Qt::Key_Backtab);
    QVERIFY(tab.isEditing());
}

QTEST_MAIN(NotesViewTest)
#include "tst_notesview.moc"
