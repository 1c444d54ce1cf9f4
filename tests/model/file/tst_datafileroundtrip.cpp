#include "model/file/datafile.h"
#include "support/longrun.h"
#include "support/randomworkspace.h"

#include <QTest>

/// What is written reads back equal, whatever it is.
class DataFileRoundTripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyWorkspace_readsBackEqual();
    void anyWorkspace_isWrittenTheSameAgain();
    void anyByteChanged_isReadOrRefused();
};

void DataFileRoundTripTest::anyWorkspace_readsBackEqual()
{
    for (quint32 seed = 0; seed < rounds(500, 100'000); ++seed) {
        const auto data = RandomWorkspace(seed).make();

        const auto bytes = quib::encodeQuibData(data);

        QVERIFY2(bytes && quib::decodeQuibData(*bytes) == data, qPrintable(QString::number(seed)));
    }
}

void DataFileRoundTripTest::anyWorkspace_isWrittenTheSameAgain()
{
    for (quint32 seed = 0; seed < rounds(100, 10'000); ++seed) {
        const auto bytes = quib::encodeQuibData(RandomWorkspace(seed).make());

        QVERIFY2(quib::encodeQuibData(quib::decodeQuibData(*bytes).value()) == bytes,
                 qPrintable(QString::number(seed)));
    }
}

/// A bit that a disk has turned makes other data or none, never a crash.
void DataFileRoundTripTest::anyByteChanged_isReadOrRefused()
{
    QRandomGenerator random(1);
    auto bytes = quib::encodeQuibData(RandomWorkspace(7).make()).value();
    int refused = 0;

    for (quint32 i = 0; i < rounds(3000, 300'000); ++i) {
        auto& byte = bytes[qsizetype(random.bounded(quint32(bytes.size())))];
        const auto before = std::exchange(byte, char(random.bounded(256)));
        refused += quib::decodeQuibData(bytes) ? 0 : 1;
        byte = before;
    }

    QVERIFY(refused > 0);
    QVERIFY(quib::decodeQuibData(bytes));
}

QTEST_APPLESS_MAIN(DataFileRoundTripTest)
#include "tst_datafileroundtrip.moc"
