#include <QTest>
QTEST_GUILESS_MAIN(QObject)
