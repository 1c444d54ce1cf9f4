#include "platform/linux/picker/pickerdesk.h"
#include "platform/linux/x11/runningprogram.h"
#include "support/sendsignal.h"

#include <QProcess>
#include <QScreen>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

/// The place of its window, and every end that a choice may have.
class PickerProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void window_isWhollyVisible_data();
    void window_isWhollyVisible();
    void window_draggedOverThePanel_staysAbove();
    void secondChoice_endsTheFirst();
    void choicesInARow_onlyTheLastStays();
    void destroyedWhileOpen_answersNothingAndEndsTheProgram();
    void parentEnds_endsTheProgram();
    void killedProgram_endsTheChoice();
    void closedWindow_endsTheChoice();
    void missingProgram_endsTheChoice();

private:
    std::unique_ptr<RunningProgram> m_manager;
};

void PickerProgramTest::initTestCase()
{
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
}

void PickerProgramTest::window_isWhollyVisible_data()
{
    QTest::addColumn<bool>("forFolders");

    QTest::addRow("folder") << true;
    QTest::addRow("application") << false;
}

void PickerProgramTest::window_isWhollyVisible()
{
    QFETCH(bool, forFolders);
    PickerDesk desk;

    forFolders ? desk.chooseFolder(desk.path({})) : desk.chooseApplication();

    const auto frame = nativeFrame(topLevelOf(desk.window));
    QVERIFY(!frame.intersects(PickerDesk::Card));
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(frame));
}

void PickerProgramTest::window_draggedOverThePanel_staysAbove()
{
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));

    xdotool({u"windowmove"_s, u"--sync"_s, QString::number(desk.window), u"500"_s, u"50"_s});

    QVERIFY(nativeFrame(topLevelOf(desk.window)).intersects(PickerDesk::Card));
    QTRY_VERIFY(isAbove(topLevelOf(desk.window), xcb_window_t(desk.panel.winId())));

    key(u"Escape"_s);
    QTRY_COMPARE(desk.answers.size(), 1);
}

void PickerProgramTest::secondChoice_endsTheFirst()
{
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));

    desk.chooseApplication();

    QTRY_COMPARE(desk.chosen(), QStringList{QString()});
    key(u"Escape"_s);
    QTRY_COMPARE(desk.chosen(), (QStringList{QString(), QString()}));
}

void PickerProgramTest::choicesInARow_onlyTheLastStays()
{
    PickerDesk desk;
    desk.picker->chooseApplication(desk.note()); // Before their windows are there.
    desk.picker->chooseFolder(std::nullopt, desk.note());
    desk.chooseFolder(desk.path({}));

    QTRY_COMPARE(desk.chosen(), (QStringList{QString(), QString()}));
    key(u"Escape"_s);
    QTRY_COMPARE(desk.chosen(), (QStringList{QString(), QString(), QString()}));
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
}

void PickerProgramTest::destroyedWhileOpen_answersNothingAndEndsTheProgram()
{
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));
    const auto program = desk.processOfWindow();
    QVERIFY(program > 0);

    desk.picker.reset();

    QVERIFY(kill(program, 0) != 0);
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
    QCOMPARE(desk.answers.size(), 0);
}

void PickerProgramTest::parentEnds_endsTheProgram()
{
    PickerDesk desk;
    QProcess program;
    program.start(PickerDesk::Program, {u"--folder"_s, desk.path({})});
    QTRY_VERIFY(windowNamed(u"Choose Folder"_s) != XCB_NONE);

    program.closeWriteChannel(); // As the system does when a parent ends.

    QTRY_COMPARE(program.state(), QProcess::NotRunning);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY(!program.readAllStandardOutput().contains("chosen"));
}

void PickerProgramTest::killedProgram_endsTheChoice()
{
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));

    sendSignal(desk.processOfWindow(), SIGKILL);

    QTRY_COMPARE(desk.chosen(), QStringList{QString()});
}

void PickerProgramTest::closedWindow_endsTheChoice()
{
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));

    xdotool({u"windowkill"_s, QString::number(desk.window)}); // Cuts its connection to the server.

    QTRY_COMPARE(desk.chosen(), QStringList{QString()});
}

void PickerProgramTest::missingProgram_endsTheChoice()
{
    PickerDesk desk;
    PickerProgram missing(desk.host, u"/nowhere/quib-picker"_s);

    missing.chooseApplication(desk.note());
    QVERIFY(desk.answers.isEmpty()); // Later, never from within the call.

    QTRY_COMPARE(desk.chosen(), QStringList{QString()});
}

QTEST_MAIN(PickerProgramTest)
#include "tst_pickerprogram.moc"
