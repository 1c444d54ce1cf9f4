#include "platform/linux/picker/pickerdesk.h"
#include "platform/linux/x11/runningprogram.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// What the program offers, and what is chosen in it with keys.
class PickerChoicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void folder_startsInTheGivenPlace();
    void folder_cancelled_givesNothing_data();
    void folder_cancelled_givesNothing();
    void folder_startingInAGonePlace_startsAboveIt();
    void application_isFoundByTyping();
    void application_arrowsMoveInTheList();
    void applications_areTheVisibleOnes();
    void oddName_arrivesUnharmed();

private:
    std::unique_ptr<RunningProgram> m_manager;
};

void PickerChoicesTest::initTestCase()
{
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
}

void PickerChoicesTest::folder_startsInTheGivenPlace()
{
    PickerDesk desk;
    const auto start = desk.path(u"clients/Müller & Söhne"_s);
    QVERIFY(QDir().mkpath(start + u"/site"_s));

    desk.chooseFolder(start);
    type(u"site"_s);
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{start + u"/site"_s});
}

void PickerChoicesTest::folder_cancelled_givesNothing_data()
{
    QTest::addColumn<QString>("way");

    QTest::addRow("Escape") << u"Escape"_s;
    QTest::addRow("the window manager's key") << u"alt+F4"_s;
}

void PickerChoicesTest::folder_cancelled_givesNothing()
{
    QFETCH(QString, way);
    PickerDesk desk;
    desk.chooseFolder(desk.path({}));

    key(way);

    QTRY_COMPARE(desk.chosen(), QStringList{QString()});
}

void PickerChoicesTest::folder_startingInAGonePlace_startsAboveIt()
{
    PickerDesk desk;
    QVERIFY(QDir().mkpath(desk.path(u"clients/site"_s)));

    desk.chooseFolder(desk.path(u"clients/gone/deeper"_s));
    type(u"site"_s);
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{desk.path(u"clients/site"_s)});
}

void PickerChoicesTest::application_isFoundByTyping()
{
    PickerDesk desk;
    desk.addEntry(u"a.desktop"_s, u"Alpha"_s);
    desk.addEntry(u"b.desktop"_s, u"Beta Writer"_s);

    desk.chooseApplication();
    type(u"writ"_s);
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{desk.path(u"data/applications/b.desktop"_s)});
}

void PickerChoicesTest::application_arrowsMoveInTheList()
{
    PickerDesk desk;
    desk.addEntry(u"a.desktop"_s, u"Alpha"_s);
    desk.addEntry(u"b.desktop"_s, u"Beta"_s);

    desk.chooseApplication();
    key(u"Down"_s);
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{desk.path(u"data/applications/b.desktop"_s)});
}

void PickerChoicesTest::applications_areTheVisibleOnes()
{
    PickerDesk desk;
    desk.addEntry(u"a.desktop"_s, u"Alpha"_s, "NoDisplay=true\n");
    desk.addEntry(u"b.desktop"_s, u"Beta"_s);

    desk.chooseApplication();
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{desk.path(u"data/applications/b.desktop"_s)});
}

void PickerChoicesTest::oddName_arrivesUnharmed()
{
    PickerDesk desk;
    const auto odd = desk.path(u"100% \"sure\"; $HOME\n#x?"_s);
    QVERIFY(QDir().mkpath(odd));

    desk.chooseFolder(odd);
    key(u"Return"_s);

    QTRY_COMPARE(desk.chosen(), QStringList{odd});
}

QTEST_MAIN(PickerChoicesTest)
#include "tst_pickerchoices.moc"
