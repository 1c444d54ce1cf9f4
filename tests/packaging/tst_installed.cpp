#include "packaging/installed.h"
#include "shortcuts/shortcutconfig.h"
#include "support/bytesof.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

/// What installing leaves, as the tools of a desktop see it.
class InstalledTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void files_areInTheirPlaces();
    void program_needsNoFolderOfTheBuild();
    void version_isTheNewestOfTheChanges();
    void tools_areContent_data();
    void tools_areContent();
    void manual_isContentAndNamesWhatIsInstalled();
    void busStarts_theInstalledProgram();
    void completionsOfBash_giveOptionsAndFolders_data();
    void completionsOfBash_giveOptionsAndFolders();
    void completionsOfFish_giveOptions();
    void completionsOfZsh_areFound();
    void schema_isContentWith_data();
    void schema_isContentWith();

private:
    Installed m_tree;
};

void InstalledTest::initTestCase()
{
    QVERIFY2(m_tree.isWhole(), m_tree.problem().constData());
}

void InstalledTest::files_areInTheirPlaces()
{
    const QStringList expected{
        u"bin/quib"_s,
        u"lib/quib/quib-eds.so"_s,
        u"lib/quib/quib-picker"_s,
        u"share/applications/org.korvel.Quib.desktop"_s,
        u"share/bash-completion/completions/quib"_s,
        u"share/dbus-1/services/org.korvel.Quib.service"_s,
        u"share/doc/quib/copyright"_s,
        u"share/fish/vendor_completions.d/quib.fish"_s,
        u"share/icons/hicolor/scalable/apps/org.korvel.Quib.svg"_s,
        u"share/icons/hicolor/symbolic/apps/org.korvel.Quib-symbolic.svg"_s,
        u"share/man/man1/quib.1"_s,
        u"share/metainfo/org.korvel.Quib.metainfo.xml"_s,
        u"share/quib/shortcuts.schema.json"_s,
        u"share/zsh/site-functions/_quib"_s,
    };

    QCOMPARE(m_tree.files(), expected);
}

void InstalledTest::program_needsNoFolderOfTheBuild()
{
    for (const auto* file : {"bin/quib", "lib/quib/quib-picker", "lib/quib/quib-eds.so"}) {
        QProcess readelf;
        readelf.start(u"readelf"_s, {u"-d"_s, m_tree.path(QString::fromLatin1(file))});
        QVERIFY(readelf.waitForFinished());
        const auto told = readelf.readAll();
        QVERIFY2(told.contains("NEEDED") && !told.contains("RUNPATH"), told.constData());
    }
}

void InstalledTest::version_isTheNewestOfTheChanges()
{
    const QRegularExpression heading(u"\n## ([0-9.]+), "_s);
    const auto newest = heading.match(QString::fromUtf8(bytesOf(sourceFile(u"CHANGELOG.md"_s))));
    QProcess program;

    program.start(m_tree.program(), {u"--version"_s});

    QVERIFY(program.waitForFinished());
    QCOMPARE(QString::fromUtf8(program.readAll()), u"Korvel Quib %1\n"_s.arg(newest.captured(1)));
}

void InstalledTest::tools_areContent_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("file");

    QTest::addRow("desktop entry") << u"desktop-file-validate"_s << QStringList()
                                   << u"share/applications/org.korvel.Quib.desktop"_s;
    QTest::addRow("metainfo") << u"appstreamcli"_s << QStringList{u"validate"_s, u"--no-net"_s}
                              << u"share/metainfo/org.korvel.Quib.metainfo.xml"_s;
    QTest::addRow("bash") << u"bash"_s << QStringList{u"-n"_s}
                          << u"share/bash-completion/completions/quib"_s;
    QTest::addRow("zsh") << u"zsh"_s << QStringList{u"-n"_s} << u"share/zsh/site-functions/_quib"_s;
    QTest::addRow("fish") << u"fish"_s << QStringList{u"-n"_s}
                          << u"share/fish/vendor_completions.d/quib.fish"_s;
}

void InstalledTest::tools_areContent()
{
    QFETCH(const QString, tool);
    QFETCH(const QStringList, options);
    QFETCH(const QString, file);

    QCOMPARE(complaintOf(tool, options + QStringList{m_tree.path(file)}), ""_ba);
}

void InstalledTest::manual_isContentAndNamesWhatIsInstalled()
{
    const auto page = m_tree.path(u"share/man/man1/quib.1"_s);
    QProcess man;

    man.start(u"man"_s, {u"--warnings"_s, u"-l"_s, page});

    QVERIFY(man.waitForFinished());
    QCOMPARE(man.exitCode(), 0);
    QCOMPARE(man.readAllStandardError(), ""_ba);
    QVERIFY(man.readAllStandardOutput().contains("QUIB(1)"));
    const auto schema = m_tree.path(u"share/quib/shortcuts.schema.json"_s).toUtf8();
    QVERIFY(bytesOf(page).contains("\n.I " + schema + '\n'));
}

void InstalledTest::busStarts_theInstalledProgram()
{
    const auto service = bytesOf(m_tree.path(u"share/dbus-1/services/org.korvel.Quib.service"_s));

    QVERIFY(service.contains("\nExec=" + m_tree.program().toUtf8() + '\n'));
    QVERIFY(service.contains("\nName=org.korvel.Quib\n"));
}

void InstalledTest::completionsOfBash_giveOptionsAndFolders_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("completed");

    QTest::addRow("options") << u"--"_s << "--snapshot --help --version \n"_ba;
    QTest::addRow("one option") << u"--sn"_s << "--snapshot \n"_ba;
    QTest::addRow("folders") << u"--snapshot bi"_s << "bin \n"_ba;
}

void InstalledTest::completionsOfBash_giveOptionsAndFolders()
{
    QFETCH(const QString, typed);
    const auto script = uR"(cd "$0"
. share/bash-completion/completions/quib
COMP_WORDS=(quib %1)
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
compopt() { :; }
_quib
printf '%s ' "${COMPREPLY[@]}"; echo)"_s.arg(typed);
    QProcess bash;

    bash.start(u"bash"_s, {u"-c"_s, script, m_tree.path()});

    QVERIFY(bash.waitForFinished());
    QTEST(bash.readAll(), "completed");
}

void InstalledTest::completionsOfFish_giveOptions()
{
    QProcess fish;

    fish.start(u"fish"_s,
               {u"-c"_s,
                u"source '%1'; complete -C'quib --'"_s.arg(
                    m_tree.path(u"share/fish/vendor_completions.d/quib.fish"_s))});

    QVERIFY(fish.waitForFinished());
    QByteArrayList options;
    for (const auto& line : fish.readAllStandardOutput().trimmed().split('\n')) {
        options << line.split('\t').first();
    }
    QCOMPARE(options, (QByteArrayList{"--help", "--snapshot", "--version"}));
}

void InstalledTest::completionsOfZsh_areFound()
{
    QProcess zsh;

    zsh.start(
        u"zsh"_s,
        {u"-f"_s, u"-c"_s,
         u"fpath=('%1' $fpath); autoload -U compinit; compinit -u -D; print $_comps[quib]"_s.arg(
             m_tree.path(u"share/zsh/site-functions"_s))});

    QVERIFY(zsh.waitForFinished());
    QCOMPARE(zsh.readAllStandardOutput(), "_quib\n"_ba);
}

void InstalledTest::schema_isContentWith_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isContent");

    QTest::addRow("a whole file")
        << R"({"$schema":"x","help":"y","groups":[{"title":"a","color":"gold","buttons":[{"name":"b","icon":"c","url":"d"}]}]})"_ba
        << true;
    QTest::addRow("of an odd schema") << R"({"$schema":1,"groups":[]})"_ba << true;
    QTest::addRow("nothing optional")
        << R"({"groups":[{"title":"a","buttons":[{"name":"b","url":"d"}]}]})"_ba << true;
    QTest::addRow("null for what is optional")
        << R"({"groups":[{"title":"a","color":null,"buttons":[{"name":"b","icon":null,"url":"d"}]}]})"_ba
        << true;
    QTest::addRow("no groups") << R"({})"_ba << false;
    QTest::addRow("no title") << R"({"groups":[{"buttons":[]}]})"_ba << false;
    QTest::addRow("no address") << R"({"groups":[{"title":"a","buttons":[{"name":"b"}]}]})"_ba
                                << false;
    QTest::addRow("a number for a name")
        << R"({"groups":[{"title":"a","buttons":[{"name":1,"url":"d"}]}]})"_ba << false;
}

/// What the loader takes, the editor praises, and nothing else.
void InstalledTest::schema_isContentWith()
{
    QFETCH(const QByteArray, json);
    const auto validate = u"import json, sys, jsonschema\n"
                          "schema = json.load(open(sys.argv[1]))\n"
                          "jsonschema.Draft7Validator.check_schema(schema)\n"
                          "jsonschema.validate(json.loads(sys.argv[2]), schema)\n"_s;

    const auto complaint
        = complaintOf(u"python3"_s,
                      {u"-c"_s, validate, m_tree.path(u"share/quib/shortcuts.schema.json"_s),
                       QString::fromUtf8(json)});

    QTEST(complaint.isEmpty(), "isContent");
    QVERIFY(complaint.isEmpty() || complaint.contains("ValidationError"));
    QCOMPARE(quib::decodeShortcuts(json).has_value(), complaint.isEmpty());
}

QTEST_GUILESS_MAIN(InstalledTest)
#include "tst_installed.moc"
