#include "platform/linux/autostartentry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

const auto EntryName = u"autostart/org.korvel.Quib.desktop"_s;
const auto Generator = u"/usr/lib/systemd/user-generators/systemd-xdg-autostart-generator"_s;

} // namespace

class AutostartEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void freshAccount_isNotEnabled();
    void enable_startsTheProgram_data();
    void enable_startsTheProgram();
    void enable_writesAValidEntry();
    void enable_appImage_startsTheImage();
    void enable_again_isStillEnabled();
    void enable_overALink_leavesItsTarget();
    void enable_fails_data();
    void enable_fails();
    void enable_folderThatCanNotBeWritten_fails();
    void disable_removesOurFile();
    void disable_notEnabled_isDone();
    void disable_installedEntry_hidesIt();
    void disable_installedEntryAndAFileInTheWay_fails();
    void isEnabled_followsTheEntries_data();
    void isEnabled_followsTheEntries();
    void isEnabled_linkToNoFile_doesNotCount_data();
    void isEnabled_linkToNoFile_doesNotCount();
    void isEnabled_whatSomeSessionsPassOver_isNot_data();
    void isEnabled_whatSomeSessionsPassOver_isNot();
    void isEnabled_relativeConfigFolder_isPassedOver();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString userFile() const { return path(u"config/"_s + EntryName); }
    QString makeFile(const QString& name, const QByteArray& bytes) const;
    QString install(const QString& name) const;
    /// What systemd would start; empty for nothing.
    QString unit() const;
    /// As sessions do that start entries through GIO.
    void launch() const;
    void comparesWithTheDesktop() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void AutostartEntryTest::initTestCase()
{
    qputenv("XDG_CURRENT_DESKTOP", "KDE"); // GIO reads it once.
}

void AutostartEntryTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(path(u"home"_s)));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(u"config"_s)));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(path(u"first"_s) + u':' + path(u"second"_s)));
    qputenv("QUIB_RECORDS", QFile::encodeName(path({})));
    qunsetenv("APPIMAGE");
}

void AutostartEntryTest::cleanup()
{
    m_folder.reset();
}

QString AutostartEntryTest::makeFile(const QString& name, const QByteArray& bytes) const
{
    auto made = path(name);
    QDir().mkpath(QFileInfo(made).path());
    QFile file(made);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
    return made;
}

QString AutostartEntryTest::install(const QString& name) const
{
    auto program = path(name);
    QDir().mkpath(QFileInfo(program).path());
    QFile::copy(QStringLiteral(RECORD_PROGRAM), program);
    return program;
}

QString AutostartEntryTest::unit() const
{
    const auto folder = path(u"units"_s);
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    QProcess generator;
    generator.start(Generator, {folder, folder, folder});
    generator.waitForFinished();
    QFile file(folder + u"/app-org.korvel.Quib@autostart.service"_s);
    return file.exists() && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                           : QString();
}

void AutostartEntryTest::launch() const
{
    QProcess::execute(u"gio"_s, {u"launch"_s, userFile()});
}

/// Without the system's own reader there is nothing to compare with.
void AutostartEntryTest::comparesWithTheDesktop() const
{
    if (QFile::exists(Generator)) {
        QCOMPARE(AutostartEntry().isEnabled(), !unit().isEmpty());
    }
}

void AutostartEntryTest::freshAccount_isNotEnabled()
{
    QVERIFY(!AutostartEntry().isEnabled());
    comparesWithTheDesktop();
}

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
    AutostartEntry entry(install(u"opt/"_s + name));

    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
    launch();
    QTRY_COMPARE(QDir(path({})).entryList({u"*.json"_s}).size(), 1);
}

void AutostartEntryTest::enable_writesAValidEntry()
{
    if (QStandardPaths::findExecutable(u"desktop-file-validate"_s).isEmpty()) {
        QSKIP("desktop-file-validate is not installed");
    }
    AutostartEntry entry(install(u"my $program/100% \\quib"_s));

    QVERIFY(entry.enable());

    QProcess validator;
    validator.start(u"desktop-file-validate"_s, {userFile()});
    QVERIFY(validator.waitForFinished());
    QCOMPARE(validator.readAll(), QByteArray());
}

void AutostartEntryTest::enable_appImage_startsTheImage()
{
    const auto image = install(u"Korvel Quib.AppImage"_s);
    qputenv("APPIMAGE", QFile::encodeName(image));

    QVERIFY(AutostartEntry().enable());

    QFile file(userFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\nExec=\"" + QFile::encodeName(image) + "\"\n"));
}

void AutostartEntryTest::enable_again_isStillEnabled()
{
    AutostartEntry entry(install(u"quib"_s));

    QVERIFY(entry.enable());
    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
    QCOMPARE(QDir(path(u"config/autostart"_s)).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void AutostartEntryTest::enable_overALink_leavesItsTarget()
{
    const auto target = makeFile(u"of-somebody-else"_s, "theirs");
    QDir().mkpath(path(u"config/autostart"_s));
    QVERIFY(QFile::link(target, userFile()));
    AutostartEntry entry(install(u"quib"_s));

    QVERIFY(entry.enable());

    QFile file(target);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "theirs"_ba);
    comparesWithTheDesktop();
}

void AutostartEntryTest::enable_fails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");

    QTest::addRow("a file in place of the folder") << u"config/autostart"_s << QString();
    QTest::addRow("a file in place of the folder above") << u"config"_s << QString();
    QTest::addRow("a folder in place of the entry") << QString() << u"config/"_s + EntryName;
}

void AutostartEntryTest::enable_fails()
{
    QFETCH(const QString, file);
    QFETCH(const QString, folder);
    AutostartEntry entry(install(u"quib"_s));
    if (!file.isEmpty()) {
        makeFile(file, "in the way");
    }
    if (!folder.isEmpty()) {
        QDir().mkpath(path(folder));
    }

    QVERIFY(!entry.enable());

    QVERIFY(!entry.isEnabled());
    comparesWithTheDesktop();
}

void AutostartEntryTest::enable_folderThatCanNotBeWritten_fails()
{
    if (geteuid() == 0) {
        QSKIP("root can write to every folder");
    }
    QDir().mkpath(path(u"config/autostart"_s));
    QFile::setPermissions(path(u"config/autostart"_s), QFile::ReadOwner | QFile::ExeOwner);
    AutostartEntry entry(install(u"quib"_s));

    QVERIFY(!entry.enable());

    QVERIFY(!entry.isEnabled());
    QFile::setPermissions(path(u"config/autostart"_s), QFile::Permissions(0x7000));
}

void AutostartEntryTest::disable_removesOurFile()
{
    AutostartEntry entry(install(u"quib"_s));
    QVERIFY(entry.enable());

    QVERIFY(entry.disable());

    QVERIFY(!entry.isEnabled());
    QVERIFY(!QFile::exists(userFile()));
    comparesWithTheDesktop();
}

void AutostartEntryTest::disable_notEnabled_isDone()
{
    QVERIFY(AutostartEntry().disable());

    QVERIFY(!QFile::exists(path(u"config"_s)));
}

void AutostartEntryTest::disable_installedEntry_hidesIt()
{
    const auto program = install(u"quib"_s);
    makeFile(u"second/"_s + EntryName,
             "[Desktop Entry]\nType=Application\nName=Quib\nExec=" + QFile::encodeName(program)
                 + '\n');
    AutostartEntry entry(program);
    QVERIFY(entry.isEnabled());
    comparesWithTheDesktop();

    QVERIFY(entry.disable());
    QVERIFY(!entry.isEnabled());
    comparesWithTheDesktop();

    QVERIFY(entry.enable());
    QVERIFY(entry.isEnabled());
    comparesWithTheDesktop();
}

void AutostartEntryTest::disable_installedEntryAndAFileInTheWay_fails()
{
    const auto program = install(u"quib"_s);
    makeFile(u"first/"_s + EntryName,
             "[Desktop Entry]\nType=Application\nName=Quib\nExec=" + QFile::encodeName(program)
                 + '\n');
    makeFile(u"config/autostart"_s, "in the way");
    AutostartEntry entry(program);

    QVERIFY(!entry.disable());

    QVERIFY(entry.isEnabled());
    comparesWithTheDesktop();
}

void AutostartEntryTest::isEnabled_followsTheEntries_data()
{
    QTest::addColumn<QByteArray>("user"); // Null for no file.
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<bool>("isEnabled");
    const auto plain = "Exec=true\n"_ba;
    const auto hidden = "Exec=true\nHidden=true\n"_ba;
    const QByteArray none;

    QTest::addRow("none") << none << none << none << false;
    QTest::addRow("the user's") << plain << none << none << true;
    QTest::addRow("an installed one") << none << plain << none << true;
    QTest::addRow("the last installed one") << none << none << plain << true;
    QTest::addRow("the first installed one counts") << none << hidden << plain << false;
    QTest::addRow("the user's counts: hidden") << hidden << plain << plain << false;
    QTest::addRow("the user's counts: shown") << plain << hidden << none << true;
    QTest::addRow("not hidden") << "Exec=true\nHidden=false\n"_ba << none << none << true;
    QTest::addRow("its program is gone") << "Exec=/not/here\n"_ba << plain << none << false;
    QTest::addRow("what it tries is gone")
        << "Exec=true\nTryExec=/not/here\n"_ba << none << none << false;
    QTest::addRow("starts nothing") << "Comment=x\n"_ba << plain << none << false;
    QTest::addRow("empty") << ""_ba << plain << none << false;
    QTest::addRow("not displayed in menus")
        << "Exec=true\nNoDisplay=true\n"_ba << none << none << true;
    QTest::addRow("switched on by GNOME")
        << "Exec=true\nX-GNOME-Autostart-enabled=true\n"_ba << none << none << true;
}

void AutostartEntryTest::isEnabled_followsTheEntries()
{
    const auto folders = {"user", "first", "second"};
    for (const auto* folder : folders) {
        const auto* column = static_cast<QByteArray*>(QTest::qData(folder, QMetaType::QByteArray));
        if (!column->isNull()) {
            const auto name
                = qstrcmp(folder, "user") == 0 ? u"config"_s : QString::fromLatin1(folder);
            makeFile(name + u'/' + EntryName,
                     column->isEmpty()
                         ? ""_ba
                         : "[Desktop Entry]\nType=Application\nName=Quib\n" + *column);
        }
    }

    QTEST(AutostartEntry().isEnabled(), "isEnabled");
    comparesWithTheDesktop();
}

void AutostartEntryTest::isEnabled_linkToNoFile_doesNotCount_data()
{
    QTest::addColumn<QString>("target");

    QTest::addRow("to nothing at all") << u"/dev/null"_s;
    QTest::addRow("to a file that is gone") << u"/not/here.desktop"_s;
}

void AutostartEntryTest::isEnabled_linkToNoFile_doesNotCount()
{
    QFETCH(const QString, target);
    makeFile(u"first/"_s + EntryName, "[Desktop Entry]\nType=Application\nName=Q\nExec=true\n");
    QVERIFY(QDir().mkpath(path(u"config/autostart"_s)));
    QVERIFY(QFile::link(target, userFile()));

    AutostartEntry entry(install(u"quib"_s));
    QVERIFY(entry.isEnabled());
    comparesWithTheDesktop();

    QVERIFY(entry.disable());

    QVERIFY(!entry.isEnabled());
    comparesWithTheDesktop();
}

void AutostartEntryTest::isEnabled_whatSomeSessionsPassOver_isNot_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::addRow("switched off by GNOME") << "X-GNOME-Autostart-enabled=false"_ba;
    QTest::addRow("for another desktop") << "OnlyShowIn=GNOME;"_ba;
    QTest::addRow("not for this desktop") << "NotShowIn=KDE;"_ba;
}

void AutostartEntryTest::isEnabled_whatSomeSessionsPassOver_isNot()
{
    QFETCH(const QByteArray, line);
    makeFile(u"config/"_s + EntryName,
             "[Desktop Entry]\nType=Application\nName=Quib\nExec=true\n" + line + '\n');
    AutostartEntry entry(install(u"quib"_s));
    QVERIFY(!entry.isEnabled());

    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
}

void AutostartEntryTest::isEnabled_relativeConfigFolder_isPassedOver()
{
    qputenv("XDG_CONFIG_HOME", "config");
    AutostartEntry entry(install(u"quib"_s));

    QVERIFY(entry.enable());

    QVERIFY(QFile::exists(path(u"home/.config/"_s + EntryName)));
    QVERIFY(entry.isEnabled());
}

QTEST_GUILESS_MAIN(AutostartEntryTest)
#include "tst_autostartentry.moc"
