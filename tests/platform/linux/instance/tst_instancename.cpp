#include "model/texts/nativepath.h"
#include "platform/linux/instance/instancename.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// The name on the bus that belongs to a data folder.
class InstanceNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isPlainForTheUsersOwnFolder();
    void otherFolder_isAValidBusName();
    void isTheSameHoweverThePathIsSpelt();

private:
    QTemporaryDir m_folder;
};

void InstanceNameTest::isPlainForTheUsersOwnFolder()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(u"data"_s)));

    const auto name = instanceName(nativePath(m_folder.filePath(u"data/KorvelQuib"_s)));

    qunsetenv("XDG_DATA_HOME");
    QCOMPARE(name, u"org.korvel.Quib"_s);
}

void InstanceNameTest::otherFolder_isAValidBusName()
{
    const auto name = instanceName(nativePath(m_folder.filePath(u"wörk & play"_s)));

    QVERIFY2(QRegularExpression(u"^org\\.korvel\\.Quib\\.d[0-9a-f]{16}$"_s).match(name).hasMatch(),
             qPrintable(name));
    QCOMPARE(objectPath(name), u"/org/korvel/Quib/"_s + name.section(u'.', 3));
}

void InstanceNameTest::isTheSameHoweverThePathIsSpelt()
{
    QVERIFY(QDir(m_folder.path()).mkdir(u"real"_s));
    QVERIFY(QFile::link(m_folder.filePath(u"real"_s), m_folder.filePath(u"link"_s)));
    const auto name = instanceName(nativePath(m_folder.filePath(u"real/new"_s)));

    QCOMPARE(instanceName(nativePath(m_folder.filePath(u"real/new/"_s))), name);
    QCOMPARE(instanceName(nativePath(m_folder.filePath(u"real/../real//new"_s))), name);
    QCOMPARE(instanceName(nativePath(m_folder.filePath(u"link/new"_s))), name);
    QCOMPARE(instanceName(
                 nativePath(QDir::current().relativeFilePath(m_folder.filePath(u"real/new"_s)))),
             name);
    QVERIFY(instanceName(nativePath(m_folder.filePath(u"real/newer"_s))) != name);
}

QTEST_GUILESS_MAIN(InstanceNameTest)
#include "tst_instancename.moc"
