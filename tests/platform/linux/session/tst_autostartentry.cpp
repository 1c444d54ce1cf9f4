#include "autostartdesk.h"
#include "support/modeof.h"
#include "support/umask.h"

#include <QStandardPaths>

#include <memory>

using namespace Qt::StringLiterals;
using quib::AutostartEntry;

/// Switching the start with the session on and off.
class AutostartEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<AutostartDesk>(); }
    void cleanup() { m_desk.reset(); }

    void enable_startsTheProgram_data();
    void enable_startsTheProgram();
    void enable_writesAValidEntry();
    void enable_appImage_startsTheImage();
    void enable_again_isStillEnabled();
    void enable_overALink_leavesItsTarget();
    void enable_fails_data();
    void enable_entryIsForTheDesktopToRead();
    void enable_fails();
    void enable_folderThatCanNotBeWritten_fails();
    void disable_removesOurFile();
    void disable_notEnabled_isDone();
    void disable_installedEntry_hidesIt();
    void disable_installedEntryAndAFileInTheWay_fails();

private:
    std::unique_ptr<AutostartDesk> m_desk;
};

void AutostartEntryTest::enable_startsTheProgram_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("plain") << u"quib"_s;
    QTest::addRow("blanks") << u"my programs/ quib"_s;
    QTest::addRow("quotes") << u"a \"b\" 'c'/quib"_s;
    QTest::addRow("backslashes") << u"a\\b\\\\n\\s/quib"_s;
    QTest::addRow("what a shell reads") << u"$HOME `id` $(id) ;&|<>*?!#~/quib"_s;
    QTest::addRow("percent signs") << u"100% %f %%/quib"_s;
    QTest::addRow("equals sign") << u"a=b/quib"_s;
    QTest::addRow("percent and equals sign") << u"a=100%/quib"_s;
    QTest::addRow("line breaks") << u"a\nb\tc/quib"_s;
    QTest::addRow("beyond ASCII") << u"été 漢字 🦊/quib"_s;
}

void AutostartEntryTest::enable_startsTheProgram()
{
    QFETCH(const QString, name);
    AutostartEntry entry(m_desk->install(u"opt/"_s + name));

    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
    QProcess::execute(u"gio"_s, {u"launch"_s, m_desk->userFile()}); // As some sessions do.
    QTRY_COMPARE(QDir(m_desk->path({})).entryList({u"*.json"_s}).size(), 1);
}

void AutostartEntryTest::enable_writesAValidEntry()
{
    QVERIFY2(!QStandardPaths::findExecutable(u"desktop-file-validate"_s).isEmpty(),
             "desktop-file-validate is not installed");
    AutostartEntry entry(m_desk->install(u"my $program/100% \\quib"_s));

    QVERIFY(entry.enable());

    QProcess validator;
    validator.start(u"desktop-file-validate"_s, {m_desk->userFile()});
    QVERIFY(validator.waitForFinished());
    QCOMPARE(validator.readAll(), QByteArray());
}

void AutostartEntryTest::enable_appImage_startsTheImage()
{
    const auto image = m_desk->install(u"Korvel Quib.AppImage"_s);
    qputenv("APPIMAGE", QFile::encodeName(image));

    QVERIFY(AutostartEntry().enable());

    QFile file(m_desk->userFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\nExec=\"" + QFile::encodeName(image) + "\"\n"));
}

void AutostartEntryTest::enable_again_isStillEnabled()
{
    AutostartEntry entry(m_desk->install(u"quib"_s));

    QVERIFY(entry.enable());
    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
    QCOMPARE(QDir(m_desk->path(u"config/autostart"_s)).entryList(QDir::Files | QDir::Hidden).size(),
             1);
}

void AutostartEntryTest::enable_overALink_leavesItsTarget()
{
    const auto target = m_desk->makeFile(u"of-somebody-else"_s, "theirs");
    QDir().mkpath(m_desk->path(u"config/autostart"_s));
    QVERIFY(QFile::link(target, m_desk->userFile()));
    AutostartEntry entry(m_desk->install(u"quib"_s));

    QVERIFY(entry.enable());

    QFile file(target);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "theirs"_ba);
    m_desk->compareWithTheDesktop();
}

void AutostartEntryTest::enable_fails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");

    QTest::addRow("a file in place of the folder") << u"config/autostart"_s << QString();
    QTest::addRow("a file in place of the folder above") << u"config"_s << QString();
    QTest::addRow("a folder in place of the entry")
        << QString() << u"config/autostart/org.korvel.Quib.desktop"_s;
}

void AutostartEntryTest::enable_entryIsForTheDesktopToRead()
{
    AutostartEntry entry(m_desk->install(u"quib"_s));
    {
        const Umask usual(022);
        QVERIFY(entry.enable());
    }

    QCOMPARE(modeOf(m_desk->userFile()), "0644"_ba);
    QCOMPARE(modeOf(m_desk->path(u"config/autostart"_s)), "0700"_ba);
}

void AutostartEntryTest::enable_fails()
{
    QFETCH(const QString, file);
    QFETCH(const QString, folder);
    AutostartEntry entry(m_desk->install(u"quib"_s));
    if (!file.isEmpty()) {
        m_desk->makeFile(file, "in the way");
    }
    if (!folder.isEmpty()) {
        QDir().mkpath(m_desk->path(folder));
    }

    QVERIFY(!entry.enable());

    QVERIFY(!entry.isEnabled());
    m_desk->compareWithTheDesktop();
}

void AutostartEntryTest::enable_folderThatCanNotBeWritten_fails()
{
    QDir().mkpath(m_desk->path(u"config"_s));
    QVERIFY(QFile::link(u"/proc/sys"_s, m_desk->path(u"config/autostart"_s))); // Not even root.
    AutostartEntry entry(m_desk->install(u"quib"_s));

    QVERIFY(!entry.enable());

    QVERIFY(!entry.isEnabled());
    m_desk->compareWithTheDesktop();
}

void AutostartEntryTest::disable_removesOurFile()
{
    AutostartEntry entry(m_desk->install(u"quib"_s));
    QVERIFY(entry.enable());

    QVERIFY(entry.disable());

    QVERIFY(!entry.isEnabled());
    QVERIFY(!QFile::exists(m_desk->userFile()));
    m_desk->compareWithTheDesktop();
}

void AutostartEntryTest::disable_notEnabled_isDone()
{
    QVERIFY(AutostartEntry().disable());

    QVERIFY(!QFile::exists(m_desk->path(u"config"_s)));
}

void AutostartEntryTest::disable_installedEntry_hidesIt()
{
    const auto program = m_desk->install(u"quib"_s);
    m_desk->putEntry(
        u"second"_s,
        "[Desktop Entry]\nType=Application\nName=Quib\nExec=" + QFile::encodeName(program) + '\n');
    AutostartEntry entry(program);
    QVERIFY(entry.isEnabled());
    m_desk->compareWithTheDesktop();

    QVERIFY(entry.disable());
    QVERIFY(!entry.isEnabled());
    m_desk->compareWithTheDesktop();

    QVERIFY(entry.enable());
    QVERIFY(entry.isEnabled());
    m_desk->compareWithTheDesktop();
}

void AutostartEntryTest::disable_installedEntryAndAFileInTheWay_fails()
{
    const auto program = m_desk->install(u"quib"_s);
    m_desk->putEntry(
        u"first"_s,
        "[Desktop Entry]\nType=Application\nName=Quib\nExec=" + QFile::encodeName(program) + '\n');
    m_desk->makeFile(u"config/autostart"_s, "in the way");
    AutostartEntry entry(program);

    QVERIFY(!entry.disable());

    QVERIFY(entry.isEnabled());
    m_desk->compareWithTheDesktop();
}

QTEST_GUILESS_MAIN(AutostartEntryTest)
#include "tst_autostartentry.moc"
