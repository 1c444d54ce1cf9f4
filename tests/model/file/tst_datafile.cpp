#include "model/file/datafile.h"

#include "model/time/utc.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using quib::decodeQuibData;
using quib::encodeQuibData;
using quib::QuibData;
using quib::Utc;

namespace {

const QUuid ClientId(u"6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"_s);
const QDateTime Morning(QDate(2026, 3, 2), QTime(9, 0), Utc);

QuibData oneOfEach()
{
    return {.clients = {{.id = ClientId,
                         .name = u"Northside Barbers"_s,
                         .status = quib::ClientStatus::Design,
                         .hourlyRate = 35}},
            .tasks = {{.id = ClientId, .title = u"Tick this off"_s, .created = Morning}},
            .entries = {{.id = ClientId, .clientID = ClientId, .start = Morning.addSecs(7200)},
                        {.id = ClientId, .start = Morning, .end = Morning.addSecs(5400)}},
            .shelf = {{.id = ClientId, .path = u"/home/someone/logo.png"_s}},
            .launch
            = {{.id = ClientId, .name = u"Slack"_s, .target = u"/Applications/Slack.app"_s}},
            .notes = u"first line\nsecond \"line\""_s};
}

QuibData withRate(double rate)
{
    return {.clients = {{.id = ClientId, .hourlyRate = rate}}};
}

QuibData readBack(const QuibData& data)
{
    return decodeQuibData(encodeQuibData(data).value_or(QByteArray())).value_or(QuibData());
}

} // namespace

class DataFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void form_isAsInTheFile();
    void nothing_hasAllLists();
    void oneOfEach_isReadBack();
    void sameData_givesTheSameBytes();
    void bytes_areJsonToOthers();
    void rate_isWrittenShortAndReadBack_data();
    void rate_isWrittenShortAndReadBack();
    void rateThatIsNotFinite_isNotWritten_data();
    void rateThatIsNotFinite_isNotWritten();
    void dateOutsideTheForm_isNotWritten();
    void fractionOfASecond_isCutOff();
    void text_isReadBack_data();
    void text_isReadBack();
    void halfASurrogatePair_becomesAReplacement();
};

void DataFileTest::form_isAsInTheFile()
{
    const auto expected = R"({
  "clients": [
    {
      "folderPath": "",
      "hourlyRate": 35,
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "name": "Northside Barbers",
      "notes": "",
      "siteURL": "",
      "status": "design"
    }
  ],
  "entries": [
    {
      "clientID": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "note": "",
      "start": "2026-03-02T11:00:00Z"
    },
    {
      "end": "2026-03-02T10:30:00Z",
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "note": "",
      "start": "2026-03-02T09:00:00Z"
    }
  ],
  "launch": [
    {
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "name": "Slack",
      "target": "\/Applications\/Slack.app"
    }
  ],
  "notes": "first line\nsecond \"line\"",
  "shelf": [
    {
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "path": "\/home\/someone\/logo.png"
    }
  ],
  "tasks": [
    {
      "created": "2026-03-02T09:00:00Z",
      "done": false,
      "id": "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34",
      "title": "Tick this off"
    }
  ]
})"_ba;

    QCOMPARE(encodeQuibData(oneOfEach()), std::optional(expected));
}

void DataFileTest::nothing_hasAllLists()
{
    const auto expected = R"({
  "clients": [],
  "entries": [],
  "launch": [],
  "notes": "",
  "shelf": [],
  "tasks": []
})"_ba;

    QCOMPARE(encodeQuibData({}), std::optional(expected));
    QCOMPARE(decodeQuibData(expected), std::optional(QuibData()));
}

void DataFileTest::oneOfEach_isReadBack()
{
    QCOMPARE(readBack(oneOfEach()), oneOfEach());
}

void DataFileTest::sameData_givesTheSameBytes()
{
    QCOMPARE(encodeQuibData(oneOfEach()), encodeQuibData(readBack(oneOfEach())));
}

void DataFileTest::bytes_areJsonToOthers()
{
    const auto document = QJsonDocument::fromJson(encodeQuibData(oneOfEach()).value());

    QCOMPARE(document[u"shelf"_s][0][u"path"_s].toString(), u"/home/someone/logo.png"_s);
    QCOMPARE(document[u"notes"_s].toString(), oneOfEach().notes);
}

void DataFileTest::rate_isWrittenShortAndReadBack_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QByteArray>("text");

    QTest::addRow("nothing") << 0.0 << "0"_ba;
    QTest::addRow("nothing, from below") << -0.0 << "-0.0"_ba;
    QTest::addRow("whole") << 35.0 << "35"_ba;
    QTest::addRow("whole with zeros") << 100000.0 << "100000"_ba;
    QTest::addRow("negative") << -12.0 << "-12"_ba;
    QTest::addRow("a fraction") << 12.5 << "12.5"_ba;
    QTest::addRow("a tenth") << 0.1 << "0.1"_ba;
    QTest::addRow("a third") << 1 / 3.0 << "0.3333333333333333"_ba;
    QTest::addRow("2^53 - 1") << 9007199254740991.0 << "9007199254740991"_ba;
    QTest::addRow("2^53") << 9007199254740992.0 << "9.007199254740992e+15"_ba;
    QTest::addRow("2^64") << 18446744073709551616.0 << "1.8446744073709552e+19"_ba;
    QTest::addRow("1e20") << 1e20 << "1e+20"_ba;
    QTest::addRow("1e21") << 1e21 << "1e+21"_ba;
    QTest::addRow("the largest") << std::numeric_limits<double>::max()
                                 << "1.7976931348623157e+308"_ba;
    QTest::addRow("the smallest") << std::numeric_limits<double>::denorm_min() << "5e-324"_ba;
}

void DataFileTest::rate_isWrittenShortAndReadBack()
{
    QFETCH(double, rate);
    QFETCH(QByteArray, text);

    const auto bytes = encodeQuibData(withRate(rate)).value();
    const auto back = decodeQuibData(bytes).value().clients.front().hourlyRate;

    QVERIFY2(bytes.contains("\"hourlyRate\": " + text + ","), bytes.constData());
    QCOMPARE(std::bit_cast<quint64>(back), std::bit_cast<quint64>(rate));
}

void DataFileTest::rateThatIsNotFinite_isNotWritten_data()
{
    QTest::addColumn<double>("rate");

    QTest::addRow("without end") << std::numeric_limits<double>::infinity();
    QTest::addRow("without end, below") << -std::numeric_limits<double>::infinity();
    QTest::addRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void DataFileTest::rateThatIsNotFinite_isNotWritten()
{
    QFETCH(double, rate);

    QVERIFY(!encodeQuibData(withRate(rate)));
}

void DataFileTest::dateOutsideTheForm_isNotWritten()
{
    QVERIFY(!encodeQuibData({.tasks = {{.id = ClientId, .created = QDateTime()}}}));
    QVERIFY(!encodeQuibData({.entries = {{.start = QDateTime(QDate(12000, 1, 1), QTime(), Utc)}}}));
}

void DataFileTest::fractionOfASecond_isCutOff()
{
    const auto first = Morning.addMSecs(1);
    const auto second = Morning.addMSecs(999);

    const auto back = readBack({.entries = {{.start = first, .end = second}, {.start = second}}});

    QCOMPARE(back.entries.front().start, Morning);
    QCOMPARE(back.entries.front().end, std::optional(Morning));
    QCOMPARE(back.entries.back().start, back.entries.front().start);
}

void DataFileTest::text_isReadBack_data()
{
    QTest::addColumn<QString>("text");

    QTest::addRow("quotes and backslashes") << u"\"\\\" \\u0041 \\"_s;
    QTest::addRow("slashes") << u"/a//b\\/c/"_s;
    QTest::addRow("a NUL") << QString::fromUtf16(u"a\0b", 3);
    QTest::addRow("all control characters") << [] {
        QString text;
        for (char16_t code = 0; code < 0xA0; ++code) {
            text += QChar(code);
        }
        return text;
    }();
    QTest::addRow("line breaks of all kinds") << u"a\nb\r\nc\rd\u2028e\u2029f"_s;
    for (int control = 0; control < 32; ++control) {
        QTest::addRow("control character %d within a long text", control)
            << QString(40, u'a') + QChar(control) + QString(40, u'b');
    }
    QTest::addRow("a byte order mark in front") << u"\uFEFFtext"_s;
    QTest::addRow("two byte order marks") << u"\uFEFF\uFEFF"_s;
    QTest::addRow("beyond the basic plane")
        << u"😀 𝔘𝔫𝔦𝔠𝔬𝔡𝔢 👩‍👩‍👧"_s;
    QTest::addRow("not characters") << u"\uFFFE\uFFFF\uFDD0"_s;
    QTest::addRow("right to left") << u"مرحبا שלום"_s;
    QTest::addRow("a megabyte") << QString(1 << 20, u'é');
}

void DataFileTest::text_isReadBack()
{
    QFETCH(QString, text);

    QCOMPARE(readBack({.notes = text}).notes, text);
}

void DataFileTest::halfASurrogatePair_becomesAReplacement()
{
    const QString first(QChar(0xD83D));
    const QString second(QChar(0xDE00));

    const auto back
        = readBack({.notes = first + u"a"_s + second + second + first + second + first});

    QCOMPARE(back.notes, u"\uFFFDa\uFFFD\uFFFD😀\uFFFD"_s);
}

QTEST_GUILESS_MAIN(DataFileTest)
#include "tst_datafile.moc"
