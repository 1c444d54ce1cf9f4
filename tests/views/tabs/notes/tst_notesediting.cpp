#include "support/panel/notestab.h"

using namespace Qt::StringLiterals;

/// Cursor, selection and the way back in the notes.
class NotesEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stamp_isOneStepBack();
    void stamp_leavesTheCursorAndWhatIsSeen();
    void stamp_takesACursorAtTheEndAlong();
    void stamp_neverGrowsTheSelection();
    void stampAfterTyping_isAStepOfItsOwn();
    void undoAndRedo_reachTheStore();
    void cursorSelectionAndUndo_surviveASaveAndOtherChanges();
    void cursorSelectionAndUndo_surviveACollapse();
    void notesChangedElsewhere_areShown();
    void selectAll_isReplacedByTyping();
    void composedText_isShownAndNotYetWritten();
    void inputMethods_areToldWhereTheCursorIs();
};

void NotesEditingTest::stamp_isOneStepBack()
{
    const NotesTab tab(u"Call Ann"_s);

    tab.stamp();
    const auto stamped = tab.notes();
    tab.undo();
    QCOMPARE(tab.notes(), u"Call Ann"_s);
    tab.redo();

    QCOMPARE(tab.notes(), stamped);
}

void NotesEditingTest::stamp_leavesTheCursorAndWhatIsSeen()
{
    const NotesTab tab(NotesTab::lines(60));
    tab.press(Qt::Key_Right);

    tab.stamp();

    QCOMPARE(tab.cursor(), 1);
    QCOMPARE(tab.scrolled(), 0.0);
    QVERIFY(tab.isEditing());
}

void NotesEditingTest::stamp_takesACursorAtTheEndAlong()
{
    const NotesTab tab(NotesTab::lines(60));
    tab.press(Qt::Key_End, Qt::ControlModifier);

    tab.stamp();
    QVERIFY(tab.showsCursor());
    tab.type(u"x"_s);

    QVERIFY(tab.notes().endsWith(u"\nx"_s));
}

/// Or the next key would replace the stamp.
void NotesEditingTest::stamp_neverGrowsTheSelection()
{
    const NotesTab tab(u"Call Ann"_s);
    for (const auto key : {Qt::Key_Home, Qt::Key_End}) {
        tab.press(Qt::Key_A, Qt::ControlModifier);
        tab.press(key, Qt::ControlModifier);
        tab.press(key == Qt::Key_Home ? Qt::Key_End : Qt::Key_Home,
                  Qt::ControlModifier | Qt::ShiftModifier);
        const auto selected = tab.selected();
        const int cursor = tab.cursor();

        tab.stamp();

        QCOMPARE(tab.selected(), selected);
        QCOMPARE(tab.cursor(), cursor);
    }
}

void NotesEditingTest::stampAfterTyping_isAStepOfItsOwn()
{
    const NotesTab tab;
    tab.type(u"Call"_s);
    tab.press(Qt::Key_Return);

    tab.stamp();
    tab.type(u"x"_s);
    const auto typed = tab.notes();
    tab.undo();
    QCOMPARE(tab.notes(), typed.chopped(1));
    tab.undo();

    QCOMPARE(tab.notes(), u"Call\n"_s);
}

void NotesEditingTest::undoAndRedo_reachTheStore()
{
    const NotesTab tab(u"Call"_s);
    tab.press(Qt::Key_End);
    tab.type(u" Ann"_s);

    tab.undo();
    QCOMPARE(tab.notes(), u"Call"_s);
    tab.redo();

    QCOMPARE(tab.notes(), u"Call Ann"_s);
}

void NotesEditingTest::cursorSelectionAndUndo_surviveASaveAndOtherChanges()
{
    NotesTab tab(u"Call"_s);
    tab.press(Qt::Key_End);
    tab.type(u" Ann"_s);
    tab.press(Qt::Key_Left, Qt::ShiftModifier);

    tab.hands.advance(std::chrono::seconds(1));
    tab.store().saveNow();
    tab.store().startTimer({}, {});
    tab.workspace.task(u"Something"_s);
    tab.workspace.client(u"Café"_s);

    QCOMPARE(tab.cursor(), 7);
    QCOMPARE(tab.selected(), u"n"_s);
    QVERIFY(tab.isEditing());
    tab.undo();
    QCOMPARE(tab.notes(), u"Call"_s);
}

void NotesEditingTest::cursorSelectionAndUndo_surviveACollapse()
{
    NotesTab tab(u"Call"_s);
    tab.press(Qt::Key_End);
    tab.type(u" Ann"_s);
    tab.press(Qt::Key_Left, Qt::ShiftModifier);
    const auto* editor = tab.input();

    tab.model.setExpanded(false);
    tab.settle();
    tab.model.setTab(quib::Tab::Tasks);
    tab.model.setExpanded(true);
    tab.settle();
    tab.model.setTab(quib::Tab::Notes);
    tab.settle();

    QCOMPARE(tab.input(), editor);
    QCOMPARE(tab.selected(), u"n"_s);
    tab.undo();
    QCOMPARE(tab.notes(), u"Call"_s);
}

void NotesEditingTest::notesChangedElsewhere_areShown()
{
    const NotesTab tab(u"Call"_s);
    tab.press(Qt::Key_Right);

    tab.store().setNotes(u"Write\nagain"_s);

    QCOMPARE(textOf(tab.input()), u"Write\nagain"_s);
    QCOMPARE(tab.cursor(), 1);
}

void NotesEditingTest::selectAll_isReplacedByTyping()
{
    const NotesTab tab(NotesTab::lines(60));

    tab.press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(tab.selected(), NotesTab::lines(60));
    tab.type(u"x"_s);

    QCOMPARE(tab.notes(), u"x"_s);
    QCOMPARE(tab.scrolled(), 0.0);
}

void NotesEditingTest::composedText_isShownAndNotYetWritten()
{
    const NotesTab tab;
    const auto before = tab.place(0);
    QInputMethodEvent composing(u"한"_s, {});

    QCoreApplication::sendEvent(tab.input(), &composing);
    QVERIFY(!tab.placeholder()->isVisible());
    QCOMPARE(textOf(tab.input(), "preeditText"), u"한"_s);
    QVERIFY(tab.place(0).left() > before.left()); // The cursor stands behind it.
    QCOMPARE(tab.notes(), QString());
    QInputMethodEvent done;
    done.setCommitString(u"한"_s);
    QCoreApplication::sendEvent(tab.input(), &done);

    QCOMPARE(tab.notes(), u"한"_s);
}

/// In the window, where their lists of candidates open, also when the notes have scrolled.
void NotesEditingTest::inputMethods_areToldWhereTheCursorIs()
{
    const NotesTab tab(NotesTab::lines(60));
    for (const auto key : {Qt::Key_Down, Qt::Key_End}) {
        tab.press(key, key == Qt::Key_End ? Qt::ControlModifier : Qt::NoModifier);
        tab.settle();

        const auto told = QGuiApplication::inputMethod()->cursorRectangle();

        const auto place = tab.place(tab.cursor());
        QVERIFY(qAbs(told.left() - place.left()) < 1);
        QVERIFY(qAbs(told.top() - place.top()) < 1);
        QVERIFY(qAbs(told.height() - place.height()) < 1);
        QVERIFY(inScene(tab.area()).contains(told));
    }
}

QTEST_MAIN(NotesEditingTest)
#include "tst_notesediting.moc"
