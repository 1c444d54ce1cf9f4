#include "desktop/desk/desk.h"
#include "support/bytesof.h"
#include "support/writefile.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SampleWorkspace = R"({"clients": [
    {"id": "6F1C0000-0000-4000-8000-000000000001", "name": "Corner Café", "status": "build",
     "siteURL": "", "folderPath": "", "hourlyRate": 35,
     "notes": "Example client. Edit or delete me."},
    {"id": "6F1C0000-0000-4000-8000-000000000002", "name": "Northside Barbers", "status": "design",
     "siteURL": "", "folderPath": "", "hourlyRate": 35, "notes": ""},
    {"id": "6F1C0000-0000-4000-8000-000000000003", "name": "Bloom Florist", "status": "lead",
     "siteURL": "", "folderPath": "", "hourlyRate": 35, "notes": ""}],
    "tasks": [
    {"id": "6F1C0000-0000-4000-8000-000000000004", "created": "2026-03-02T09:00:00Z", "done": false,
     "title": "Send Corner Café the homepage preview",
     "clientID": "6F1C0000-0000-4000-8000-000000000001"},
    {"id": "6F1C0000-0000-4000-8000-000000000005", "created": "2026-03-02T09:00:00Z", "done": false,
     "title": "Tick this off to try it"}],
    "launch": [
    {"id": "6F1C0000-0000-4000-8000-000000000006", "name": "Gmail", "target": "a.example"},
    {"id": "6F1C0000-0000-4000-8000-000000000007", "name": "Calendar", "target": "b.example"}],
    "entries": [], "shelf": [], "notes": ""})";

} // namespace

/// The program from a shell, where there is no display.
class WithoutDisplayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noDisplay_saysSoInOneLine();
    void unreachableDisplay_saysSoInOneLine();
    void help_andVersion_needNoDisplay_data();
    void help_andVersion_needNoDisplay();
    void snapshot_isTheSameTwice();
    void snapshot_withoutData_showsTheSampleWorkspace();
    void snapshot_showsTheIconsOfApplications();
    void snapshot_growsWithTheScaleFactor();
    void snapshot_leavesAMissingFolderMissing();

private:
    void run(const QStringList& arguments);
    QByteArray picture(const QString& folder, const QString& name) const;
    QString put(const QString& name, const QByteArray& bytes) const;
    void takePictures(const QString& folder);

    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
    int m_status = -1;
    QByteArray m_out;
    QByteArray m_error;
};

void WithoutDisplayTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_environment = {};
    m_environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
    m_environment.insert(u"HOME"_s, m_home->path());
    m_environment.insert(u"LSAN_OPTIONS"_s, qEnvironmentVariable("LSAN_OPTIONS"));
}

void WithoutDisplayTest::run(const QStringList& arguments)
{
    QProcess quib;
    quib.setProcessEnvironment(m_environment);
    quib.start(Desk::quib(), arguments);
    QVERIFY(quib.waitForFinished());
    QCOMPARE(quib.exitStatus(), QProcess::NormalExit);
    m_status = quib.exitCode();
    m_out = quib.readAllStandardOutput();
    m_error = quib.readAllStandardError();
}

QByteArray WithoutDisplayTest::picture(const QString& folder, const QString& name) const
{
    return bytesOf(m_home->filePath(folder + u'/' + name));
}

QString WithoutDisplayTest::put(const QString& name, const QByteArray& bytes) const
{
    return writeFile(m_home->filePath(name), bytes);
}

void WithoutDisplayTest::takePictures(const QString& folder)
{
    QVERIFY(QDir(m_home->path()).mkdir(folder));
    run({u"--snapshot"_s, m_home->filePath(folder)});
    QCOMPARE(m_status, 0);
    QCOMPARE(m_out + m_error, QByteArray());
}

void WithoutDisplayTest::noDisplay_saysSoInOneLine()
{
    run({});

    QCOMPARE(m_status, 1);
    QCOMPARE(m_out, QByteArray());
    QCOMPARE(m_error.count('\n'), 1);
    QVERIFY(m_error.contains("display"));
}

void WithoutDisplayTest::unreachableDisplay_saysSoInOneLine()
{
    m_environment.insert(u"DISPLAY"_s, u":4711"_s);

    run({});

    QCOMPARE(m_status, 1);
    QCOMPARE(m_error.count('\n'), 1);
}

void WithoutDisplayTest::help_andVersion_needNoDisplay_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QByteArray>("words");

    QTest::addRow("help") << u"--help"_s << QByteArray("Usage: quib");
    QTest::addRow("version") << u"--version"_s << QByteArray("Korvel Quib ");
}

void WithoutDisplayTest::help_andVersion_needNoDisplay()
{
    QFETCH(QString, argument);
    QFETCH(QByteArray, words);

    run({argument});

    QCOMPARE(m_status, 0);
    QVERIFY(m_out.startsWith(words));
    QCOMPARE(m_error, QByteArray());
}

void WithoutDisplayTest::snapshot_isTheSameTwice()
{
    for (const auto& folder : {u"first"_s, u"second"_s}) {
        takePictures(folder);
    }

    const auto names = QDir(m_home->filePath(u"first"_s)).entryList(QDir::Files);
    QCOMPARE(names.size(), 7);
    for (const auto& name : names) {
        QCOMPARE(QImage(m_home->filePath(u"first/"_s + name)).size(), QSize(760, 330));
        QVERIFY2(picture(u"first"_s, name) == picture(u"second"_s, name), qPrintable(name));
    }
}

void WithoutDisplayTest::snapshot_withoutData_showsTheSampleWorkspace()
{
    const auto file = u".local/share/KorvelQuib/data.json"_s;
    takePictures(u"without data"_s);
    QVERIFY(!QFile::exists(m_home->filePath(file)));

    put(file, SampleWorkspace);
    takePictures(u"sample data"_s);
    put(file, QByteArray(SampleWorkspace).replace("Corner", "Other"));
    takePictures(u"other data"_s);

    for (const auto& name : {u"home.png"_s, u"clients.png"_s, u"tasks.png"_s}) {
        const auto shown = picture(u"without data"_s, name);
        QVERIFY2(shown == picture(u"sample data"_s, name), qPrintable(name));
        QVERIFY2(shown != picture(u"other data"_s, name), qPrintable(name));
    }
}

void WithoutDisplayTest::snapshot_showsTheIconsOfApplications()
{
    const auto icon = m_home->filePath(u"icon.png"_s);
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(icon));
    put(u"mine.desktop"_s, "[Desktop Entry]\nName=Mine\nIcon=" + QFile::encodeName(icon) + "\n");
    put(u".local/share/KorvelQuib/shortcuts.json"_s,
        R"({"groups": [{"title": "A", "buttons": [{"name": "Mine", "url": "~/mine.desktop"}]}]})");

    run({u"--snapshot"_s, m_home->path()});

    const QImage links(m_home->filePath(u"links.png"_s));
    int count = 0;
    for (int y = 0; y < links.height(); ++y) {
        for (int x = 0; x < links.width(); ++x) {
            count += links.pixelColor(x, y) == Qt::red;
        }
    }
    QCOMPARE(count, 20 * 20);
}

void WithoutDisplayTest::snapshot_growsWithTheScaleFactor()
{
    m_environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);

    run({u"--snapshot"_s, m_home->path()});

    QCOMPARE(QImage(m_home->filePath(u"tasks.png"_s)).size(), QSize(1520, 660));
}

void WithoutDisplayTest::snapshot_leavesAMissingFolderMissing()
{
    run({u"--snapshot"_s, m_home->filePath(u"missing"_s)});

    QCOMPARE(m_status, 0);
    QCOMPARE(m_out + m_error, QByteArray());
    QVERIFY(!QDir(m_home->filePath(u"missing"_s)).exists());
}

QTEST_GUILESS_MAIN(WithoutDisplayTest)
#include "tst_withoutdisplay.moc"
