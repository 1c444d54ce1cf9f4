#include "model/texts/timestamp.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TimestampTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stamp_isALineOfItsOwn_data();
    void stamp_isALineOfItsOwn();
};

void TimestampTest::stamp_isALineOfItsOwn_data()
{
    QTest::addColumn<QString>("notes");
    QTest::addColumn<QString>("added");

    const auto stamp = u"— 15 Nov 2026 at 09:41\n"_s;
    QTest::addRow("nothing yet") << QString() << stamp;
    QTest::addRow("a letter last") << u"Call Ann"_s << u'\n' + stamp;
    QTest::addRow("a line feed last") << u"Call Ann\n"_s << stamp;
    QTest::addRow("two line feeds last") << u"Call Ann\n\n"_s << stamp;
    QTest::addRow("nothing but a line feed") << u"\n"_s << stamp;
    QTest::addRow("the line end of another system last") << u"Call Ann\r\n"_s << stamp;
    QTest::addRow("a carriage return last") << u"Call Ann\r"_s << u'\n' + stamp;
    QTest::addRow("a line separator last") << u"Call Ann\u2028"_s << u'\n' + stamp;
    QTest::addRow("a blank last") << u"Call Ann "_s << u'\n' + stamp;
}

void TimestampTest::stamp_isALineOfItsOwn()
{
    QFETCH(QString, notes);

    QTEST(quib::timestamp(notes, u"15 Nov 2026 at 09:41"_s), "added");
}

QTEST_GUILESS_MAIN(TimestampTest)
#include "tst_timestamp.moc"
