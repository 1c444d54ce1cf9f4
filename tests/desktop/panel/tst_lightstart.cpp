#include "desktop/desk/desk.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

/// A panel that has not been opened yet has read nothing of what only the open card needs.
class LightStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void librariesOfTheCard_areReadWhenItOpens();
    void viewsAreRead_withoutWaitingForAPlugin();
};

namespace {

/// Whether the process has read a library whose name begins so.
bool hasRead(const Program& program, const QByteArray& library)
{
    QFile maps(u"/proc/%1/maps"_s.arg(program->processId()));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains('/' + library);
}

} // namespace

void LightStartTest::librariesOfTheCard_areReadWhenItOpens()
{
    Desk desk;
    const auto quib = desk.startQuib();
    QVERIFY(hasRead(quib, "libQt6Quick.so"));
    QVERIFY(!hasRead(quib, "libQt6QuickTemplates2.so"));

    desk.openWithPointer();

    QVERIFY(hasRead(quib, "libQt6QuickTemplates2.so"));
}

void LightStartTest::viewsAreRead_withoutWaitingForAPlugin()
{
    Desk desk;
    const auto quib = desk.startQuib();

    QVERIFY(hasRead(quib, "libQt6QmlWorkerScript.so"));
    QVERIFY(!hasRead(quib, "libworkerscriptplugin.so"));
}

QTEST_GUILESS_MAIN(LightStartTest)
#include "tst_lightstart.moc"
