#include "model/records/clientstatus.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::AllClientStatuses;

class ClientStatusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void allStatuses_standInPipelineOrder();
    void everyStatus_hasItsTitle();
    void everyRawText_isReadBack();
    void otherTexts_areNoStatus_data();
    void otherTexts_areNoStatus();
};

void ClientStatusTest::allStatuses_standInPipelineOrder()
{
    QStringList texts;
    for (const auto status : AllClientStatuses) {
        texts << quib::rawText(status);
    }

    QCOMPARE(texts,
             (QStringList{u"lead"_s, u"design"_s, u"build"_s, u"review"_s, u"live"_s, u"care"_s}));
}

void ClientStatusTest::everyStatus_hasItsTitle()
{
    QStringList titles;
    for (const auto status : AllClientStatuses) {
        titles << quib::title(status);
    }

    QCOMPARE(
        titles,
        (QStringList{u"Lead"_s, u"Design"_s, u"Build"_s, u"Review"_s, u"Live"_s, u"Care plan"_s}));
}

void ClientStatusTest::everyRawText_isReadBack()
{
    for (const auto status : AllClientStatuses) {
        QCOMPARE(quib::clientStatus(quib::rawText(status)), std::optional(status));
    }
}

void ClientStatusTest::otherTexts_areNoStatus_data()
{
    QTest::addColumn<QString>("text");

    QTest::addRow("nothing") << QString();
    QTest::addRow("another letter case") << u"Lead"_s;
    QTest::addRow("a blank behind") << u"lead "_s;
    QTest::addRow("another word") << u"done"_s;
}

void ClientStatusTest::otherTexts_areNoStatus()
{
    QFETCH(QString, text);

    QVERIFY(!quib::clientStatus(text));
}

QTEST_GUILESS_MAIN(ClientStatusTest)
#include "tst_clientstatus.moc"
