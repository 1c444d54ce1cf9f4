#include "shortcuts/shortcutconfig.h"

#include "shortcuts/startertext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class ShortcutConfigTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void starter_hasItsEightButtons();
    void starter_isLaidOutToBeEdited();
    void optionalMembers_mayBeMissingOrNull_data();
    void optionalMembers_mayBeMissingOrNull();
    void otherMembers_arePassedOver_data();
    void otherMembers_arePassedOver();
    void largeNumber_whereNoneBelongs_isAMistake();
    void url_staysAsWritten();
    void equalRecords_haveEqualHashes();
};

namespace {

/// One group of one button, and members of either that a test adds.
QByteArray config(const QByteArray& ofGroup, const QByteArray& ofButton)
{
    return R"({"groups": [{"title": "T")" + ofGroup + R"(, "buttons": [{"name": "N", "url": "u")"
        + ofButton + "}]}]}";
}

} // namespace

void ShortcutConfigTest::starter_hasItsEightButtons()
{
    const auto groups = decodeShortcuts(starterShortcuts()).value().groups;

    QCOMPARE(groups.size(), 2);
    QCOMPARE(groups[0].title, u"Work"_s);
    QCOMPARE(groups[0].color, u"purple"_s);
    QCOMPARE(groups[1].title, u"Make money"_s);
    QCOMPARE(groups[1].color, u"gold"_s);
    QStringList shown;
    for (const auto& button : groups[0].buttons + groups[1].buttons) {
        shown << button.name + u' ' + button.icon.value();
        QVERIFY(button.url.startsWith(u"https://"_s));
    }
    QCOMPARE(shown,
             (QStringList{u"Inbox envelope.fill"_s, u"Calendar calendar"_s, u"Files folder.fill"_s,
                          u"Canva paintpalette.fill"_s, u"Find leads map.fill"_s,
                          u"Email outreach paperplane.fill"_s, u"LinkedIn outreach person.2.fill"_s,
                          u"Book a call phone.fill"_s}));
    const auto& outreach = groups[1].buttons;
    QVERIFY(outreach[0].url.endsWith(u"/maps"_s));
    QVERIFY(outreach[1].url.endsWith(u"/mail/?view=cm&fs=1"_s));
    QVERIFY(outreach[2].url.endsWith(u"/feed/"_s));
    QVERIFY(outreach[3].url.endsWith(u"/calendar/u/0/r/eventedit"_s));
}

void ShortcutConfigTest::starter_isLaidOutToBeEdited()
{
    const auto lines = starterShortcuts().split('\n');

    QVERIFY(lines[1].startsWith(R"(  "help": "One group per box on the Shortcuts tab. )"));
    QVERIFY(lines[1].endsWith(R"(Colours: purple, gold or a hex like #22c55e.",)"));
    const auto isButton = [](const QByteArray& line) {
        return line.startsWith(R"(        { "name": ")") && line.contains(R"(", "icon": ")")
            && line.contains(R"(", "url": ")");
    };
    QCOMPARE(std::count_if(lines.begin(), lines.end(), isButton), 8);
}

void ShortcutConfigTest::optionalMembers_mayBeMissingOrNull_data()
{
    QTest::addColumn<QByteArray>("ofGroup");
    QTest::addColumn<QByteArray>("ofButton");

    QTest::addRow("missing") << QByteArray() << QByteArray();
    QTest::addRow("null") << QByteArray(R"(, "color": null)") << QByteArray(R"(, "icon": null)");
}

void ShortcutConfigTest::optionalMembers_mayBeMissingOrNull()
{
    QFETCH(QByteArray, ofGroup);
    QFETCH(QByteArray, ofButton);

    const auto group = decodeShortcuts(config(ofGroup, ofButton)).value().groups.value(0);

    QVERIFY(!group.color);
    QVERIFY(!group.buttons.value(0).icon);
}

void ShortcutConfigTest::otherMembers_arePassedOver_data()
{
    QTest::addColumn<QByteArray>("value");

    QTest::addRow("a list") << "[1]"_ba;
    QTest::addRow("a number beyond 64 bits") << "123456789012345678901234"_ba;
    QTest::addRow("a number beyond any double") << "1e400"_ba;
    QTest::addRow("such numbers within") << R"({"a": [1e400, {"b": 123456789012345678901234}]})"_ba;
}

void ShortcutConfigTest::otherMembers_arePassedOver()
{
    QFETCH(QByteArray, value);

    const auto read = decodeShortcuts(config(R"(, "more": )" + value, R"(, "colour": )" + value));

    QVERIFY(read);
    QCOMPARE(read->groups.size(), 1);
    QCOMPARE(read->groups[0].buttons[0].url, u"u"_s);
}

void ShortcutConfigTest::largeNumber_whereNoneBelongs_isAMistake()
{
    for (const auto& number : {"1e400"_ba, "123456789012345678901234"_ba}) {
        QVERIFY(!decodeShortcuts(config(R"(, "color": )" + number, {})));
        QVERIFY(!decodeShortcuts(config({}, R"(, "icon": )" + number)));
        QVERIFY(!decodeShortcuts(R"({"groups": [)" + number + "]}"));
        QVERIFY(!decodeShortcuts(R"({"groups": )" + number + '}'));
    }
}

void ShortcutConfigTest::url_staysAsWritten()
{
    const auto read = decodeShortcuts(
        R"({"groups":[{"title":"","buttons":[{"name":" <b>x</b> ","url":" Example.COM/ä "}]}]})");

    const auto button = read.value().groups[0].buttons[0];
    QCOMPARE(button.name, u" <b>x</b> "_s);
    QCOMPARE(button.url, u" Example.COM/ä "_s);
}

void ShortcutConfigTest::equalRecords_haveEqualHashes()
{
    const auto once = decodeShortcuts(starterShortcuts()).value().groups;
    const auto again = decodeShortcuts(starterShortcuts()).value().groups;

    QCOMPARE(once, again);
    QCOMPARE(qHash(once[0]), qHash(again[0]));
    QVERIFY(once[0] != once[1]);
}

QTEST_APPLESS_MAIN(ShortcutConfigTest)
#include "tst_shortcutconfig.moc"
