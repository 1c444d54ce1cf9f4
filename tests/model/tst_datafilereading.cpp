#include "model/datafile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::decodeQuibData;

namespace {

constexpr auto Id = "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34"_L1;
constexpr auto Date = "2026-03-02T09:00:00Z"_L1;

/// One record in each list, with every optional member.
QJsonObject wholeFile()
{
    const QJsonObject client{{u"id"_s, Id},
                             {u"name"_s, u"Bloom"_s},
                             {u"status"_s, u"lead"_s},
                             {u"siteURL"_s, QString()},
                             {u"folderPath"_s, QString()},
                             {u"hourlyRate"_s, 35},
                             {u"notes"_s, QString()}};
    const QJsonObject task{{u"id"_s, Id},
                           {u"title"_s, u"Call Ann"_s},
                           {u"clientID"_s, Id},
                           {u"done"_s, false},
                           {u"created"_s, Date}};
    const QJsonObject entry{{u"id"_s, Id},
                            {u"clientID"_s, Id},
                            {u"start"_s, Date},
                            {u"end"_s, Date},
                            {u"note"_s, QString()}};
    const QJsonObject item{{u"id"_s, Id}, {u"path"_s, u"/a"_s}};
    const QJsonObject launch{{u"id"_s, Id}, {u"name"_s, u"Mail"_s}, {u"target"_s, u"/b"_s}};
    return {{u"clients"_s, QJsonArray{client}}, {u"tasks"_s, QJsonArray{task}},
            {u"entries"_s, QJsonArray{entry}},  {u"shelf"_s, QJsonArray{item}},
            {u"launch"_s, QJsonArray{launch}},  {u"notes"_s, u"all of it"_s}};
}

/// The file with one member of its first record of a list set, or taken out when undefined.
QByteArray with(const QString& list, const QString& key, const QJsonValue& value)
{
    auto file = wholeFile();
    auto record = file[list].toArray().first().toObject();
    value.isUndefined() ? record.remove(key) : void(record[key] = value);
    file[list] = QJsonArray{record};
    return QJsonDocument(file).toJson();
}

QByteArray with(const QString& key, const QJsonValue& value)
{
    auto file = wholeFile();
    value.isUndefined() ? file.remove(key) : void(file[key] = value);
    return QJsonDocument(file).toJson();
}

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

const QJsonValue Missing = QJsonValue::Undefined;

} // namespace

class DataFileReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wholeFile_isReadable();
    void missingRequiredMember_isUnreadable_data();
    void missingRequiredMember_isUnreadable();
    void missingOptionalMember_isAbsent();
    void nullForAnOptionalMember_isAbsent();
    void wrongValue_isUnreadable_data();
    void wrongValue_isUnreadable();
    void unusualValue_isRead_data();
    void unusualValue_isRead();
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

void DataFileReadingTest::missingRequiredMember_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto file = wholeFile();
    for (const auto& key : file.keys()) {
        QTest::addRow("%s", qPrintable(key)) << with(key, Missing);
        const auto record = file[key].toArray().first().toObject();
        for (const auto& required : record.keys()) {
            if (required != "clientID"_L1 && required != "end"_L1) {
                QTest::addRow("%s of %s", qPrintable(required), qPrintable(key))
                    << with(key, required, Missing);
            }
        }
    }
}

void DataFileReadingTest::missingRequiredMember_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileReadingTest::missingOptionalMember_isAbsent()
{
    QVERIFY(!decodeQuibData(with(u"tasks"_s, u"clientID"_s, Missing))->tasks.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"clientID"_s, Missing))->entries.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"end"_s, Missing))->entries.front().end);
}

void DataFileReadingTest::nullForAnOptionalMember_isAbsent()
{
    const auto null = QJsonValue(QJsonValue::Null);

    QVERIFY(!decodeQuibData(with(u"tasks"_s, u"clientID"_s, null))->tasks.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"clientID"_s, null))->entries.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"end"_s, null))->entries.front().end);
}

void DataFileReadingTest::wrongValue_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto null = QJsonValue(QJsonValue::Null);
    QTest::addRow("null for a list") << with(u"clients"_s, null);
    QTest::addRow("an object for a list") << with(u"clients"_s, QJsonObject());
    QTest::addRow("a text for the notes' object") << with(u"notes"_s, QJsonArray());
    QTest::addRow("null for the notes") << with(u"notes"_s, null);
    QTest::addRow("a text for a record") << with(u"clients"_s, QJsonArray{u"Bloom"_s});
    QTest::addRow("null for a record") << with(u"clients"_s, QJsonArray{null});
    QTest::addRow("a number for a text") << with(u"clients"_s, u"name"_s, 7);
    QTest::addRow("null for a text") << with(u"clients"_s, u"name"_s, null);
    QTest::addRow("a text for a rate") << with(u"clients"_s, u"hourlyRate"_s, u"35"_s);
    QTest::addRow("true for a rate") << with(u"clients"_s, u"hourlyRate"_s, true);
    QTest::addRow("null for a rate") << with(u"clients"_s, u"hourlyRate"_s, null);
    QTest::addRow("a number for done") << with(u"tasks"_s, u"done"_s, 0);
    QTest::addRow("a text for done") << with(u"tasks"_s, u"done"_s, u"false"_s);
    QTest::addRow("null for an id") << with(u"shelf"_s, u"id"_s, null);
    QTest::addRow("no id") << with(u"shelf"_s, u"id"_s, QString());
    QTest::addRow("an id in braces")
        << with(u"shelf"_s, u"id"_s, u"{6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34}"_s);
    QTest::addRow("a client that is no id") << with(u"tasks"_s, u"clientID"_s, u"Bloom"_s);
    QTest::addRow("no client's id") << with(u"entries"_s, u"clientID"_s, QString());
    QTest::addRow("a date with a fraction")
        << with(u"entries"_s, u"start"_s, u"2026-03-02T09:00:00.5Z"_s);
    QTest::addRow("a date with an offset")
        << with(u"entries"_s, u"end"_s, u"2026-03-02T09:00:00+01:00"_s);
    QTest::addRow("a number for a date") << with(u"tasks"_s, u"created"_s, 1772442000);
    QTest::addRow("a day that is none") << with(u"entries"_s, u"end"_s, u"2026-02-30T09:00:00Z"_s);
    QTest::addRow("a status in another letter case") << with(u"clients"_s, u"status"_s, u"Lead"_s);
    QTest::addRow("a status that is none") << with(u"clients"_s, u"status"_s, u"done"_s);
    QTest::addRow("a number for a status") << with(u"clients"_s, u"status"_s, 0);
}

void DataFileReadingTest::wrongValue_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileReadingTest::unusualValue_isRead_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::addRow("an id in small letters")
        << with(u"shelf"_s, u"id"_s, u"6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"_s);
    QTest::addRow("an id of zeros")
        << with(u"shelf"_s, u"id"_s, u"00000000-0000-0000-0000-000000000000"_s);
    QTest::addRow("a rate with a fraction") << with(u"clients"_s, u"hourlyRate"_s, 12.5);
    QTest::addRow("a negative rate") << with(u"clients"_s, u"hourlyRate"_s, -1);
    QTest::addRow("an end before the start")
        << with(u"entries"_s, u"end"_s, u"1999-12-31T23:59:59Z"_s);
}

void DataFileReadingTest::unusualValue_isRead()
{
    QFETCH(QByteArray, file);

    QVERIFY(decodeQuibData(file));
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
