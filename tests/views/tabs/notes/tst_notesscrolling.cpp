#include "support/panel/notestab.h"

using namespace Qt::StringLiterals;

/// Which part of long notes is in sight.
class NotesScrollingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pages_moveTheCursorByWhatIsSeen();
    void pages_selectWithShift();
    void endsOfTheText_areShown();
    void typingOutOfSight_bringsTheCursorBack();
    void dragBeyondTheEdge_selectsOn();
    void wheel_scrollsWithoutMovingTheCursor();
};

void NotesScrollingTest::pages_moveTheCursorByWhatIsSeen()
{
    const NotesTab tab(NotesTab::lines(60));
    const auto seen = inScene(tab.area()).height() / tab.place(0).height();

    tab.press(Qt::Key_PageDown);
    const auto moved = tab.place(tab.cursor()).top() - tab.place(0).top();
    const auto rows = moved / tab.place(0).height();
    QVERIFY2(rows > seen - 3 && rows < seen, qPrintable(QString::number(rows)));
    QVERIFY(tab.showsCursor());
    for (int page = 0; page < 10; ++page) {
        tab.press(Qt::Key_PageDown);
    }
    QVERIFY(tab.cursor() > NotesTab::lines(59).size());
    QVERIFY(tab.showsCursor());
    for (int page = 0; page < 10; ++page) {
        tab.press(Qt::Key_PageUp);
    }

    QCOMPARE(tab.cursor(), 0);
    QCOMPARE(tab.scrolled(), 0.0);
}

void NotesScrollingTest::pages_selectWithShift()
{
    const NotesTab tab(NotesTab::lines(60));

    tab.press(Qt::Key_PageDown, Qt::ShiftModifier);

    QVERIFY(tab.selected().startsWith(u"line 0\nline 1\n"_s));
    QCOMPARE(tab.selected().size(), tab.cursor());
}

void NotesScrollingTest::endsOfTheText_areShown()
{
    const NotesTab tab(NotesTab::lines(60));

    tab.press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(tab.cursor(), NotesTab::lines(60).size());
    QVERIFY(tab.showsCursor());
    tab.press(Qt::Key_Home, Qt::ControlModifier);

    QCOMPARE(tab.cursor(), 0);
    QCOMPARE(tab.scrolled(), 0.0);
}

void NotesScrollingTest::typingOutOfSight_bringsTheCursorBack()
{
    const NotesTab tab(NotesTab::lines(60));
    ShownPanel::find(tab.area(), u"flickable"_s)->setProperty("contentY", 300);
    QVERIFY(!tab.showsCursor());

    tab.type(u"x"_s);

    QVERIFY(tab.showsCursor());
}

void NotesScrollingTest::dragBeyondTheEdge_selectsOn()
{
    const NotesTab tab(NotesTab::lines(60));
    const auto from = tab.place(0).center().toPoint();
    const auto below = QPoint(from.x(), qRound(inScene(tab.area()).bottom()) + 8);

    QTest::mousePress(tab.window.get(), Qt::LeftButton, {}, from);
    QTest::mouseMove(tab.window.get(), from + QPoint(0, 30));
    QTest::mouseMove(tab.window.get(), below);
    const auto atTheEdge = tab.selected().size();

    QTRY_VERIFY(tab.selected().size() > atTheEdge + 30); // The pointer rests.
    QVERIFY(tab.scrolled() > 0);
    QTest::mouseRelease(tab.window.get(), Qt::LeftButton, {}, below);
}

void NotesScrollingTest::wheel_scrollsWithoutMovingTheCursor()
{
    const NotesTab tab(NotesTab::lines(60));
    const auto place = inScene(tab.area()).center();
    QWheelEvent wheel(place, tab.window->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);

    QCoreApplication::sendEvent(tab.window.get(), &wheel);

    QTRY_VERIFY(tab.scrolled() > 0);
    QCOMPARE(tab.cursor(), 0);
}

QTEST_MAIN(NotesScrollingTest)
#include "tst_notesscrolling.moc"
