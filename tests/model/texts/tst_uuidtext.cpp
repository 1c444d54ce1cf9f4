#include "model/texts/uuidtext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::parseUuid;
using quib::uuidText;

namespace {

QByteArray textOf(const QUuid& id)
{
    const auto text = uuidText(id);
    return {text.data(), static_cast<qsizetype>(text.size())};
}

std::optional<QUuid> parsed(const QByteArray& text)
{
    return parseUuid({text.constData(), static_cast<std::size_t>(text.size())});
}

} // namespace

class UuidTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void id_isWrittenInCapitals();
    void text_isReadInEitherLetterCase();
    void otherForms_areNoId_data();
    void otherForms_areNoId();
    void anyId_isReadBack();
};

void UuidTextTest::id_isWrittenInCapitals()
{
    const QUuid id(u"6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"_s);

    QCOMPARE(textOf(id), "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34"_ba);
}

void UuidTextTest::text_isReadInEitherLetterCase()
{
    const std::optional id(QUuid(u"6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"_s));

    QCOMPARE(parsed("6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34"), id);
    QCOMPARE(parsed("6f1c0a2e-93b4-4d57-8e21-0c5d7a9b1f34"), id);
    QCOMPARE(parsed("6f1C0a2E-93b4-4D57-8e21-0c5d7A9B1F34"), id);
}

void UuidTextTest::otherForms_areNoId_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("in braces") << "{6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34}"_ba;
    QTest::addRow("without hyphens") << "6F1C0A2E93B44D578E210C5D7A9B1F34"_ba;
    QTest::addRow("a digit short") << "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F3"_ba;
    QTest::addRow("a digit more") << "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F340"_ba;
    QTest::addRow("a letter that is no digit") << "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F3G"_ba;
    QTest::addRow("a hyphen for a digit") << "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F3-"_ba;
    QTest::addRow("a digit for a hyphen") << "6F1C0A2E093B4-4D57-8E21-0C5D7A9B1F34"_ba;
    QTest::addRow("hyphens elsewhere") << "6F1C0A2-E93B4-4D57-8E21-0C5D7A9B1F34"_ba;
    QTest::addRow("a character beyond ASCII") << "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F3\xC1"_ba;
    QTest::addRow("a NUL") << QByteArray("6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F3\0", 36);
}

void UuidTextTest::otherForms_areNoId()
{
    QFETCH(QByteArray, text);

    QVERIFY(!parsed(text));
}

void UuidTextTest::anyId_isReadBack()
{
    for (int round = 0; round < 1000; ++round) {
        const auto id = QUuid::createUuid();

        QCOMPARE(textOf(id), id.toByteArray(QUuid::WithoutBraces).toUpper());
        QCOMPARE(parsed(textOf(id)), std::optional(id));
    }
}

QTEST_GUILESS_MAIN(UuidTextTest)
#include "tst_uuidtext.moc"
