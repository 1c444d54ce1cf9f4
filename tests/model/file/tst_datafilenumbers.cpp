#include "model/file/datafile.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::decodeQuibData;

namespace {

/// A workspace of one client and one task, with members that a test adds or chooses.
struct File {
    QByteArray rate = "35";
    QByteArray notes = R"("")";
    QByteArray taskMembers = R"("done": false)";
    QByteArray more; ///< Members of the whole.

    QByteArray bytes() const
    {
        const auto id = R"("id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34")"_ba;
        return R"({"clients": [{)" + id + R"(, "hourlyRate":)" + rate
            + R"(, "name": "", "status": "lead", "siteURL": "", "folderPath": "", "notes": ""}],)"
            + R"("tasks": [{)" + id + R"(, "title": "", "created": "2026-03-02T09:00:00Z",)"
            + taskMembers + R"(}], "entries": [], "shelf": [], "launch": [], "notes": )" + notes
            + more + "}";
    }
};

} // namespace

/// JSON has numbers of any size, whatever a machine has.
class DataFileNumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rate_isAnyNumber_data();
    void rate_isAnyNumber();
    void unknownMember_mayHoldAnyNumber_data();
    void unknownMember_mayHoldAnyNumber();
    void unknownMember_mayBeNestedAsDeepAsItLikes();
    void largeNumber_whereNoneBelongs_isUnreadable_data();
    void largeNumber_whereNoneBelongs_isUnreadable();
    void brokenNumber_besideALargeOne_isUnreadable_data();
    void brokenNumber_besideALargeOne_isUnreadable();
    void text_besideALargeNumber_staysAsWritten();
    void byteOrderMark_isSkippedBeforeALargeNumber();
};

void DataFileNumbersTest::rate_isAnyNumber_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<double>("rate");

    QTest::addRow("the largest of 64 bits") << "18446744073709551615"_ba << 18446744073709551615.0;
    QTest::addRow("one more") << "18446744073709551616"_ba << 18446744073709551616.0;
    QTest::addRow("21 digits") << "100000000000000000000"_ba << 1e20;
    QTest::addRow("below zero") << "-123456789012345678901234"_ba << -123456789012345678901234.0;
    QTest::addRow("300 digits") << '1' + QByteArray(299, '0') << 1e299;
    QTest::addRow("many digits behind the point") << "0." + QByteArray(400, '3') << 1.0 / 3;
    QTest::addRow("the largest double") << "1.7976931348623157e308"_ba << 1.7976931348623157e308;
    QTest::addRow("too small for a double") << "1e-400"_ba << 0.0;
    QTest::addRow("zero with a great exponent") << "0e400"_ba << 0.0;
}

void DataFileNumbersTest::rate_isAnyNumber()
{
    QFETCH(QByteArray, written);
    QFETCH(double, rate);

    const auto data = decodeQuibData(File{.rate = written}.bytes());

    QVERIFY(data);
    QCOMPARE(data->clients.front().hourlyRate, rate);
}

void DataFileNumbersTest::unknownMember_mayHoldAnyNumber_data()
{
    QTest::addColumn<QByteArray>("value");

    QTest::addRow("24 digits") << "123456789012345678901234"_ba;
    QTest::addRow("24 digits below zero") << "-123456789012345678901234"_ba;
    QTest::addRow("a thousand digits") << QByteArray(1000, '9');
    QTest::addRow("beyond any double") << "1e400"_ba;
    QTest::addRow("far below zero") << "-1.5E+400"_ba;
    QTest::addRow("several in a list") << "[1e400, 123456789012345678901234, [1e999]]"_ba;
    QTest::addRow("in an object of an object") << R"({"a": {"b": [{"c": 1e400}]}, "d": 7})"_ba;
    QTest::addRow("behind an escaped quote") << R"({"\"": "\\", "b\\\"": 1e400})"_ba;
}

void DataFileNumbersTest::unknownMember_mayHoldAnyNumber()
{
    QFETCH(QByteArray, value);
    const auto ofTask = R"("done": true, "extra": )" + value;

    const auto data = decodeQuibData(
        File{.notes = R"("all of it")", .taskMembers = ofTask, .more = R"(, "extra": )" + value}
            .bytes());

    QVERIFY(data);
    QCOMPARE(data->notes, u"all of it"_s);
    QCOMPARE(data->clients.front().hourlyRate, 35.0);
    QVERIFY(data->tasks.front().done);
}

void DataFileNumbersTest::unknownMember_mayBeNestedAsDeepAsItLikes()
{
    constexpr int Depth = 100'000;
    const auto nested = QByteArray(Depth, '[') + "1e400" + QByteArray(Depth, ']');

    QVERIFY(decodeQuibData(File{.more = R"(, "extra": )" + nested}.bytes()));
    QVERIFY(!decodeQuibData(File{.more = R"(, "extra": )" + nested.chopped(1)}.bytes()));
}

void DataFileNumbersTest::largeNumber_whereNoneBelongs_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::addRow("a rate beyond any double") << File{.rate = "1e400"}.bytes();
    QTest::addRow("a rate of 400 digits") << File{.rate = QByteArray(400, '9')}.bytes();
    for (const auto& number : {"1e400"_ba, "123456789012345678901234"_ba}) {
        QTest::addRow("%s for a text", number.constData()) << File{.notes = number}.bytes();
        QTest::addRow("%s for done", number.constData())
            << File{.taskMembers = R"("done": )" + number}.bytes();
        QTest::addRow("%s for a client's id", number.constData())
            << File{.taskMembers = R"("done": false, "clientID": )" + number}.bytes();
        QTest::addRow("%s for a list", number.constData())
            << File{}.bytes().replace(R"("shelf": [])", R"("shelf": )" + number);
        QTest::addRow("%s for a record", number.constData())
            << File{}.bytes().replace(R"("shelf": [])", R"("shelf": [)" + number + ']');
        QTest::addRow("%s for it all", number.constData()) << number;
    }
}

void DataFileNumbersTest::largeNumber_whereNoneBelongs_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileNumbersTest::brokenNumber_besideALargeOne_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("value");

    for (const auto* value : {"0123456789012345678901234",
                              "+123456789012345678901234",
                              "123456789012345678901234.",
                              ".123456789012345678901234",
                              "--123456789012345678901234",
                              "123456789012345678901234e",
                              "1e+",
                              "-",
                              "01e400",
                              "+1e400",
                              "1.e400",
                              ".1e400",
                              "1e4000e4000",
                              "1e400x",
                              "1e400 1e400",
                              "1e400\"\"",
                              "x1e400",
                              "0x1e400",
                              "NaN",
                              "\"1e400",
                              "{1e400: 1}",
                              "[1e400"}) {
        QTest::addRow("%s", value) << QByteArray(value);
    }
}

void DataFileNumbersTest::brokenNumber_besideALargeOne_isUnreadable()
{
    QFETCH(QByteArray, value);

    QVERIFY(!decodeQuibData(File{.more = R"(, "large": 1e400, "extra": )" + value}.bytes()));
}

void DataFileNumbersTest::text_besideALargeNumber_staysAsWritten()
{
    const auto file = File{.notes = R"("1e400 \"123456789012345678901234\\\" \\")",
                           .more = R"(, "extra": 123456789012345678901234)"};

    const auto data = decodeQuibData(file.bytes());

    QVERIFY(data);
    QCOMPARE(data->notes, u"1e400 \"123456789012345678901234\\\" \\"_s);
}

void DataFileNumbersTest::byteOrderMark_isSkippedBeforeALargeNumber()
{
    const auto file = File{.rate = "100000000000000000000"}.bytes();

    QCOMPARE(decodeQuibData("\xEF\xBB\xBF" + file), decodeQuibData(file));
    QVERIFY(decodeQuibData(file));
}

QTEST_GUILESS_MAIN(DataFileNumbersTest)
#include "tst_datafilenumbers.moc"
