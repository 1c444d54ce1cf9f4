#include "model/file/datafile.h"
#include "model/file/datafiletext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::decodeQuibData;

namespace {

QByteArray manyEntries(qsizetype bytes)
{
    const auto entry = R"({"id":"6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",)"
                       R"("start":"2026-03-02T09:00:00Z","note":"x"})"_ba;
    QByteArray file = R"({"clients":[],"tasks":[],"shelf":[],"launch":[],"notes":"","entries":[)";
    while (file.size() < bytes) {
        file.append(entry).append(',');
    }
    return file.append(entry).append("]}");
}

} // namespace

class DataFileReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wholeFile_isReadable();
    void malformedFile_isUnreadable_data();
    void malformedFile_isUnreadable();
    void byteOrderMark_isSkipped();
    void unknownMembers_areIgnored();
    void repeatedKey_countsTheFirst();
    void escapedKey_isTheSameKey();
    void slash_isReadInEitherForm();
    void repeatedIds_areAllRead();
    void fiftyMegabytes_areRead();
};

void DataFileReadingTest::wholeFile_isReadable()
{
    const auto data = decodeQuibData(QJsonDocument(wholeFile()).toJson());

    QVERIFY(data);
    QCOMPARE(data->clients.front().hourlyRate, 35.0);
    QCOMPARE(data->tasks.front().clientID, data->entries.front().clientID);
    QCOMPARE(data->notes, u"all of it"_s);
}

void DataFileReadingTest::malformedFile_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto file = QJsonDocument(wholeFile()).toJson();
    QTest::addRow("no bytes") << QByteArray();
    QTest::addRow("blanks") << "  \n "_ba;
    QTest::addRow("a byte order mark alone") << "\xEF\xBB\xBF"_ba;
    QTest::addRow("an empty object") << "{}"_ba;
    QTest::addRow("an array") << "[]"_ba;
    QTest::addRow("null") << "null"_ba;
    QTest::addRow("cut off") << file.chopped(file.size() / 2);
    QTest::addRow("text behind it") << file + "x";
    QTest::addRow("twice") << file + file;
    QTest::addRow("UTF-16") << QByteArray("{\0}\0", 4);
    QTest::addRow("a megabyte of [") << QByteArray(1 << 20, '[');
    QTest::addRow("a megabyte of {\"a\":") << QByteArray(R"({"a":)").repeated(1 << 18);
    QTest::addRow("a rate of 1e400") << QByteArray(file).replace(": 35", ": 1e400");
    QTest::addRow("a rate of NaN") << QByteArray(file).replace(": 35", ": NaN");
    QTest::addRow("a byte that is no UTF-8") << QByteArray(file).replace("all of it", "\xFF");
    QTest::addRow("overlong UTF-8") << QByteArray(file).replace("all of it", "\xC0\xAF");
    QTest::addRow("a raw line break in a text") << QByteArray(file).replace("all of it", "a\nb");
    QTest::addRow("half an escaped pair") << QByteArray(file).replace("all of it", "\\ud800");
    QTest::addRow("a byte order mark before a rate") << QByteArray(file).replace(": 35",
                                                                                 ": \xEF\xBB\xBF"
                                                                                 "35");
    QTest::addRow("a value too many of an unknown member")
        << QByteArray(file).replace("\"notes\"", R"("theme": "a": 1, "notes")");
    QTest::addRow("brackets that do not match, of an unknown member")
        << QByteArray(file).replace("\"notes\"", R"("theme": [}, "notes")");
    QTest::addRow("a word that is none, of an unknown member")
        << QByteArray(file).replace("\"notes\"", R"("theme": tru, "notes")");
    QTest::addRow("a text with a wrong escape, of an unknown member")
        << QByteArray(file).replace("\"notes\"", R"("theme": "\q", "notes")");
    QTest::addRow("a key with a wrong escape")
        << QByteArray(file).replace("\"notes\"", R"("\q": 1, "notes")");
    QTest::addRow("a repeated key with a broken value")
        << QByteArray(file).replace("\"all of it\"", R"("all of it", "notes": [1 2])");
    QTest::addRow("a brace too few") << file.trimmed().chopped(1);
    QTest::addRow("a comma too many") << QByteArray(file).replace("all of it\"", "\",");
}

void DataFileReadingTest::malformedFile_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileReadingTest::byteOrderMark_isSkipped()
{
    const auto file = QJsonDocument(wholeFile()).toJson();

    QCOMPARE(decodeQuibData("\xEF\xBB\xBF" + file), decodeQuibData(file));
    QVERIFY(decodeQuibData(file));
}

void DataFileReadingTest::unknownMembers_areIgnored()
{
    QVERIFY(decodeQuibData(with(u"theme"_s, QJsonObject{{u"dark"_s, true}})));
    QVERIFY(decodeQuibData(with(u"clients"_s, u"phone"_s, 7)));
}

void DataFileReadingTest::repeatedKey_countsTheFirst()
{
    auto file = QJsonDocument(wholeFile()).toJson();
    file.replace(R"("all of it")", R"("first", "notes": "second")");

    QCOMPARE(decodeQuibData(file)->notes, u"first"_s);
}

void DataFileReadingTest::escapedKey_isTheSameKey()
{
    auto file = QJsonDocument(wholeFile()).toJson();
    file.replace(R"("target")", R"("t\u0061rget")");

    QCOMPARE(decodeQuibData(file)->launch.front().target, u"/b"_s);
}

void DataFileReadingTest::slash_isReadInEitherForm()
{
    auto file = QJsonDocument(wholeFile()).toJson();
    file.replace("all of it", "a/b\\/c");

    QCOMPARE(decodeQuibData(file)->notes, u"a/b/c"_s);
}

void DataFileReadingTest::repeatedIds_areAllRead()
{
    auto file = wholeFile();
    const auto client = file[u"clients"_s].toArray().first();
    file[u"clients"_s] = QJsonArray{client, client};

    QCOMPARE(decodeQuibData(QJsonDocument(file).toJson())->clients.size(), 2);
}

void DataFileReadingTest::fiftyMegabytes_areRead()
{
    const auto data = decodeQuibData(manyEntries(50'000'000));

    QVERIFY(data);
    QVERIFY(data->entries.size() > 400'000);
    QCOMPARE(data->entries.back().note, u"x"_s);
}

QTEST_GUILESS_MAIN(DataFileReadingTest)
#include "tst_datafilereading.moc"
