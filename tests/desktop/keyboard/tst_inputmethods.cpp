#include "desktop/desk/deskconnection.h"
#include "support/writefile.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Letters that take more than one key.
class InputMethodsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void composeKey_writesOneLetterOfThree_data();
    void composeKey_writesOneLetterOfThree();
    void engine_writesWhatItComposed_data();
    void engine_writesWhatItComposed();
    void collapse_keepsWhatIsBeingComposed_data();
    void collapse_keepsWhatIsBeingComposed();
    void click_writesWhatIsBeingComposedOnce_data();
    void click_writesWhatIsBeingComposedOnce();
};

namespace {

constexpr QPoint Notes{600, 150};

/// A field, and what of it is on disk.
struct Place {
    int tab;
    QPoint field;
    QString written(const Desk& desk) const
    {
        return tab == 6 ? desk.data().value("notes"_L1).toString() : desk.savedTasks().value(0);
    }
};

void addPlaces()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QPoint>("field");

    QTest::addRow("the notes") << 6 << Notes;
    QTest::addRow("a task") << 3 << Desk::TaskField;
}

Place placeOfRow()
{
    QFETCH(int, tab);
    QFETCH(QPoint, field);
    return {tab, field};
}

void goTo(const Place& place, const Desk& desk)
{
    desk.openWithPointer();
    desk.showTab(place.tab);
    desk.click(place.field);
}

/// Quib on a desk with IBus and the Korean engine, which makes one letter of up to three keys.
struct ComposingDesk : Desk {
    Program daemon;
    Program quib;

    ComposingDesk()
    {
        setVariable(u"GSETTINGS_BACKEND"_s, u"memory"_s);
        setVariable(u"QT_IM_MODULE"_s, u"ibus"_s);
        daemon = start(u"ibus-daemon"_s,
                       {u"--panel=disable"_s, u"--emoji-extension=disable"_s,
                        u"--config=/usr/libexec/ibus-memconf"_s});
        // An engine that starts before there are settings hangs.
        waitFor("the settings of the engine", [this] { return hasSettings(); });
        waitFor("the engine", [this] {
            told(u"ibus"_s, {u"engine"_s, u"hangul"_s});
            return told(u"ibus"_s, {u"engine"_s}) == "hangul\n";
        });
        quib = startQuib();
    }
    ~ComposingDesk()
    {
        end(*quib);
        end(*daemon);
    }
    Q_DISABLE_COPY_MOVE(ComposingDesk)

    /// From Latin letters to Korean ones.
    void writeKorean() const { key(u"shift+space"_s); }

private:
    QByteArray told(const QString& program, const QStringList& arguments)
    {
        const auto tool = start(program, arguments);
        tool->waitForFinished();
        return tool->readAllStandardOutput();
    }

    bool hasSettings()
    {
        const auto address = QString::fromUtf8(told(u"ibus"_s, {u"address"_s})).trimmed();
        return told(u"dbus-send"_s,
                    {u"--bus="_s + address, u"--print-reply=literal"_s,
                     u"--dest=org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                     u"org.freedesktop.DBus.NameHasOwner"_s,
                     u"string:org.freedesktop.IBus.Config"_s})
            .contains("true");
    }

    static void end(QProcess& program)
    {
        program.terminate();
        program.waitForFinished();
    }
};

} // namespace

void InputMethodsTest::composeKey_writesOneLetterOfThree_data()
{
    addPlaces();
}

void InputMethodsTest::composeKey_writesOneLetterOfThree()
{
    Desk desk;
    writeFile(desk.folder(u".XCompose"_s), "<Multi_key> <apostrophe> <e> : \"é\" eacute\n");
    desk.setVariable(u"QT_IM_MODULE"_s, u"compose"_s);
    desk.start(u"setxkbmap"_s, {u"-layout"_s, u"us"_s, u"-option"_s, u"compose:ralt"_s})
        ->waitForFinished();
    const auto quib = desk.startQuib();
    const auto place = placeOfRow();
    goTo(place, desk);

    desk.type(u"Caf"_s);
    for (const auto& key : {u"Multi_key"_s, u"apostrophe"_s, u"e"_s}) {
        desk.key(key);
    }
    desk.type(u"s"_s);
    if (place.tab == 3) {
        desk.key(u"Return"_s);
    }

    QTRY_COMPARE(place.written(desk), u"Cafés"_s);
}

void InputMethodsTest::engine_writesWhatItComposed_data()
{
    addPlaces();
}

void InputMethodsTest::engine_writesWhatItComposed()
{
    ComposingDesk desk;
    const auto place = placeOfRow();
    goTo(place, desk);
    desk.writeKorean();

    desk.type(u"gksrmf"_s);
    desk.key(u"Return"_s); // Ends what is being composed.
    desk.key(u"Return"_s);

    QTRY_VERIFY2(place.written(desk).startsWith(u"한글"_s), qPrintable(place.written(desk)));
}

void InputMethodsTest::collapse_keepsWhatIsBeingComposed_data()
{
    addPlaces();
}

void InputMethodsTest::collapse_keepsWhatIsBeingComposed()
{
    ComposingDesk desk;
    const auto place = placeOfRow();
    goTo(place, desk);
    desk.writeKorean();
    desk.type(u"gks"_s);

    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    desk.openWithPointer();
    desk.click(place.field);
    desk.key(u"End"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(place.written(desk).trimmed(), u"한"_s);
}

void InputMethodsTest::click_writesWhatIsBeingComposedOnce_data()
{
    addPlaces();
}

void InputMethodsTest::click_writesWhatIsBeingComposedOnce()
{
    ComposingDesk desk;
    const auto place = placeOfRow();
    goTo(place, desk);
    desk.writeKorean();
    desk.type(u"gks"_s);

    desk.click(place.field + QPoint(60, 0)); // Or it would be a double click, which selects.
    desk.type(u"rmf"_s);
    desk.click(place.field);
    desk.key(u"End"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(place.written(desk).trimmed(), u"한글"_s);
}

QTEST_GUILESS_MAIN(InputMethodsTest)
#include "tst_inputmethods.moc"
