#include "pictures/likeness.h"

#include <QDir>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The pictures in the README are what the program draws today.
class ReadmePicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picture_isAsTheProgramDrawsIt_data();
    void picture_isAsTheProgramDrawsIt();
    void readme_showsEachOfThem();

private:
    QTemporaryDir m_drawn;
};

namespace {

const QString Pictures = QStringLiteral(SOURCE_FOLDER "/docs/pictures");
const QStringList Tabs{u"home"_s, u"links"_s, u"clients"_s, u"tasks"_s,
                       u"time"_s, u"shelf"_s, u"notes"_s};

/// Other versions of the fonts, of the icons and of Qt draw otherwise.
bool drawsAsKept()
{
    return QSysInfo::productType() == u"debian"_s && QSysInfo::productVersion() == u"12"_s;
}

} // namespace

void ReadmePicturesTest::picture_isAsTheProgramDrawsIt_data()
{
    QTest::addColumn<QString>("file");
    for (const auto& tab : Tabs) {
        QTest::addRow("%s", qPrintable(tab)) << tab + u".png"_s;
    }

    const bool isKept = qEnvironmentVariableIsSet("QUIB_KEEP_PICTURES") && drawsAsKept();
    QProcess drawing;
    drawing.start(QStringLiteral(SOURCE_FOLDER "/packaging/pictures"),
                  {QStringLiteral(QUIB), isKept ? Pictures : m_drawn.path()});
    QVERIFY(drawing.waitForFinished());
    QVERIFY2(drawing.exitCode() == 0, drawing.readAllStandardError().constData());
}

void ReadmePicturesTest::picture_isAsTheProgramDrawsIt()
{
    QFETCH(const QString, file);
    if (qEnvironmentVariableIsSet("QUIB_KEEP_PICTURES")) {
        QSKIP("the pictures of today are kept");
    }
    const QImage drawn(m_drawn.filePath(file));
    QCOMPARE(drawn.size(), QSize(2 * 760, 2 * 330));
    if (!drawsAsKept()) {
        QSKIP("drawn, but compared on Debian 12 only: other fonts, icons and Qt draw otherwise");
    }

    const auto likeness = compare(simplified(drawn), simplified(QImage(Pictures + u'/' + file)));

    QVERIFY2(likeness.isAlike(), qPrintable(u"%1 pixels differ"_s.arg(likeness.strayPixels)));
}

void ReadmePicturesTest::readme_showsEachOfThem()
{
    QFile readme(QStringLiteral(SOURCE_FOLDER "/README.md"));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    const auto text = readme.readAll();

    for (const auto& tab : Tabs) {
        QVERIFY2(text.contains("](docs/pictures/" + tab.toUtf8() + ".png)"), qPrintable(tab));
    }
}

QTEST_GUILESS_MAIN(ReadmePicturesTest)
#include "tst_readmepictures.moc"
