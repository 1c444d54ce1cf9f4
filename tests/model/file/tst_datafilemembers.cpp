#include "model/file/datafile.h"
#include "model/file/datafiletext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::decodeQuibData;

namespace {

const QJsonValue Missing = QJsonValue::Undefined;

} // namespace

/// The members of the records in a data file: which have to be there, and what they may hold.
class DataFileMembersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void missingRequiredMember_isUnreadable_data();
    void missingRequiredMember_isUnreadable();
    void missingOptionalMember_isAbsent();
    void nullForAnOptionalMember_isAbsent();
    void wrongValue_isUnreadable_data();
    void wrongValue_isUnreadable();
    void unusualValue_isRead_data();
    void unusualValue_isRead();
};

void DataFileMembersTest::missingRequiredMember_isUnreadable_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto file = wholeFile();
    for (const auto& list : file.keys()) {
        QTest::addRow("%s", qPrintable(list)) << with(list, Missing);
        const auto record = file[list].toArray().first().toObject();
        for (const auto& key : record.keys()) {
            if (key != "clientID"_L1 && key != "end"_L1) {
                QTest::addRow("%s of %s", qPrintable(key), qPrintable(list))
                    << with(list, key, Missing);
            }
        }
    }
}

void DataFileMembersTest::missingRequiredMember_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileMembersTest::missingOptionalMember_isAbsent()
{
    QVERIFY(!decodeQuibData(with(u"tasks"_s, u"clientID"_s, Missing))->tasks.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"clientID"_s, Missing))->entries.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"end"_s, Missing))->entries.front().end);
}

void DataFileMembersTest::nullForAnOptionalMember_isAbsent()
{
    const auto null = QJsonValue(QJsonValue::Null);

    QVERIFY(!decodeQuibData(with(u"tasks"_s, u"clientID"_s, null))->tasks.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"clientID"_s, null))->entries.front().clientID);
    QVERIFY(!decodeQuibData(with(u"entries"_s, u"end"_s, null))->entries.front().end);
}

void DataFileMembersTest::wrongValue_isUnreadable_data()
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

void DataFileMembersTest::wrongValue_isUnreadable()
{
    QFETCH(QByteArray, file);

    QVERIFY(!decodeQuibData(file));
}

void DataFileMembersTest::unusualValue_isRead_data()
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

void DataFileMembersTest::unusualValue_isRead()
{
    QFETCH(QByteArray, file);

    QVERIFY(decodeQuibData(file));
}

QTEST_GUILESS_MAIN(DataFileMembersTest)
#include "tst_datafilemembers.moc"
