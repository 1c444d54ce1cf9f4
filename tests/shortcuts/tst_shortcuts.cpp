#include "shortcuts/shortcuts.h"

#include "model/texts/nativepath.h"
#include "shortcuts/startertext.h"
#include "support/datafolderfortest.h"
#include "support/enlarge.h"
#include "support/writefile.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

const QByteArray Good
    = R"({"groups": [{"title": "Mine", "buttons": [{"name": "N", "url": "u"}]}]})";
const auto Problem = u"shortcuts.json has a typo, so these are the last working buttons. Check for "
                     "a missing comma or quote."_s;

} // namespace

class ShortcutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void beforeTheFirstReload_thereIsNothing();
    void missingFile_isWrittenAndShown();
    void fileDeletedMeanwhile_isWrittenAgain();
    void goodFile_isNeverWritten();
    void noGroups_isNoProblem();
    void brokenFile_keepsTheLastWorkingButtons_data();
    void brokenFile_keepsTheLastWorkingButtons();
    void brokenAtFirst_showsTheStarterButtons();
    void brokenAfterNoGroups_showsTheStarterButtons();
    void endlessFile_isNoButtons();
    void fileOfATerabyte_isNoButtons();
    void folderInItsPlace_showsTheStarterButtons();
    void fileThatCanNotBeWritten_showsTheStarterButtons();
    void sameFileAgain_announcesNothing();
    void edit_writesAMissingFileAndOpensIt();

private:
    void put(const QByteArray& bytes);
    QString file() const { return m_folder->path() + u"/shortcuts.json"_s; }
    QByteArray bytes() const;
    QStringList titles() const;

    std::unique_ptr<DataFolderForTest> m_folder;
    std::unique_ptr<Shortcuts> m_shortcuts;
};

void ShortcutsTest::init()
{
    m_folder.reset(); // It forgets the variable when it goes.
    m_folder = std::make_unique<DataFolderForTest>();
    m_shortcuts = std::make_unique<Shortcuts>();
}

void ShortcutsTest::put(const QByteArray& bytes)
{
    writeFile(file(), bytes);
}

QByteArray ShortcutsTest::bytes() const
{
    QFile in(file());
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QStringList ShortcutsTest::titles() const
{
    QStringList titles;
    for (const auto& group : m_shortcuts->groups()) {
        titles << group.title;
    }
    return titles;
}

void ShortcutsTest::beforeTheFirstReload_thereIsNothing()
{
    QVERIFY(m_shortcuts->groups().isEmpty());
    QVERIFY(!m_shortcuts->problem());
    QVERIFY(!QFileInfo::exists(file()));
}

void ShortcutsTest::missingFile_isWrittenAndShown()
{
    m_shortcuts->reload();

    QCOMPARE(bytes(), starterShortcuts());
    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QVERIFY(!m_shortcuts->problem());
}

void ShortcutsTest::fileDeletedMeanwhile_isWrittenAgain()
{
    put(Good);
    m_shortcuts->reload();
    QCOMPARE(titles(), QStringList{u"Mine"_s});

    QFile::remove(file());
    m_shortcuts->reload();

    QCOMPARE(bytes(), starterShortcuts());
    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
}

void ShortcutsTest::goodFile_isNeverWritten()
{
    put("\xEF\xBB\xBF" + Good);

    m_shortcuts->reload();

    QCOMPARE(bytes(), "\xEF\xBB\xBF" + Good);
    QCOMPARE(titles(), QStringList{u"Mine"_s});
}

void ShortcutsTest::noGroups_isNoProblem()
{
    put(Good);
    m_shortcuts->reload();

    put(R"({"groups": []})");
    m_shortcuts->reload();

    QVERIFY(m_shortcuts->groups().isEmpty());
    QVERIFY(!m_shortcuts->problem());
}

void ShortcutsTest::brokenFile_keepsTheLastWorkingButtons_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const auto group
        = [](const QByteArray& members) { return R"({"groups": [{)" + members + "}]}"; };
    const auto button = [&](const QByteArray& members) {
        return group(R"("title": "T", "buttons": [{)" + members + "}]");
    };
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("blank") << QByteArray(" \n");
    QTest::addRow("comma missing") << QByteArray(R"({"help": "" "groups": []})");
    QTest::addRow("comma too many") << QByteArray(R"({"groups": [],})");
    QTest::addRow("quote missing") << QByteArray(R"({"groups: []})");
    QTest::addRow("bracket missing") << QByteArray(R"({"groups": [})");
    QTest::addRow("something after the end") << QByteArray(R"({"groups": []} x)");
    QTest::addRow("comment") << QByteArray("{\"groups\": [] // none\n}");
    QTest::addRow("single quotes") << QByteArray("{'groups': []}");
    QTest::addRow("a list at the top") << QByteArray("[]");
    QTest::addRow("a text at the top") << QByteArray(R"("groups")");
    QTest::addRow("no groups") << QByteArray(R"({"help": ""})");
    QTest::addRow("null groups") << QByteArray(R"({"groups": null})");
    QTest::addRow("groups of another type") << QByteArray(R"({"groups": {}})");
    QTest::addRow("group of another type") << QByteArray(R"({"groups": ["Work"]})");
    QTest::addRow("group without title") << group(R"("buttons": [])");
    QTest::addRow("group without buttons") << group(R"("title": "T")");
    QTest::addRow("title of another type") << group(R"("title": 1, "buttons": [])");
    QTest::addRow("colour of another type") << group(R"("title": "", "buttons": [], "color": 1)");
    QTest::addRow("button without name") << button(R"("url": "u")");
    QTest::addRow("button without url") << button(R"("name": "N")");
    QTest::addRow("null url") << button(R"("name": "N", "url": null)");
    QTest::addRow("icon of another type") << button(R"("name": "N", "url": "u", "icon": true)");
    QTest::addRow("not UTF-8") << button("\"name\": \"\xFF\", \"url\": \"u\"");
    QTest::addRow("a megabyte of brackets") << QByteArray(1 << 20, '[');
    QTest::addRow("100 MB") << QByteArray(100'000'000, ' ') + Good;
}

void ShortcutsTest::brokenFile_keepsTheLastWorkingButtons()
{
    QFETCH(QByteArray, bytes);
    put(Good);
    m_shortcuts->reload();

    put(bytes);
    m_shortcuts->reload();

    QCOMPARE(titles(), QStringList{u"Mine"_s});
    QCOMPARE(m_shortcuts->problem(), Problem);
    QCOMPARE(QFileInfo(file()).size(), bytes.size());

    put(Good);
    m_shortcuts->reload();

    QVERIFY(!m_shortcuts->problem());
}

void ShortcutsTest::brokenAtFirst_showsTheStarterButtons()
{
    put("{");

    m_shortcuts->reload();

    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QCOMPARE(m_shortcuts->problem(), Problem);
    QCOMPARE(bytes(), "{");
}

void ShortcutsTest::brokenAfterNoGroups_showsTheStarterButtons()
{
    put(R"({"groups": []})");
    m_shortcuts->reload();

    put("{");
    m_shortcuts->reload();

    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
}

void ShortcutsTest::endlessFile_isNoButtons()
{
    QCOMPARE(mkfifo(QFile::encodeName(file()).constData(), 0600), 0);

    m_shortcuts->reload(); // Reading a pipe that nobody writes into would wait.

    QCOMPARE(m_shortcuts->problem(), Problem);
}

void ShortcutsTest::fileOfATerabyte_isNoButtons()
{
    put(Good);
    if (const auto hindrance = enlarge(file(), qint64(1) << 40); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }

    m_shortcuts->reload();

    QCOMPARE(m_shortcuts->problem(), Problem);
    QCOMPARE(QFileInfo(file()).size(), qint64(1) << 40);
}

void ShortcutsTest::folderInItsPlace_showsTheStarterButtons()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"shortcuts.json"_s));

    m_shortcuts->reload();

    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QCOMPARE(m_shortcuts->problem(), Problem);
}

void ShortcutsTest::fileThatCanNotBeWritten_showsTheStarterButtons()
{
    const auto inTheWay = writeFile(m_folder->path() + u"/file"_s, "no folder");
    qputenv("QUIB_DATA_DIR", QFile::encodeName(inTheWay));

    m_shortcuts->reload();

    QCOMPARE(titles(), (QStringList{u"Work"_s, u"Make money"_s}));
    QCOMPARE(m_shortcuts->problem(), Problem);
}

void ShortcutsTest::sameFileAgain_announcesNothing()
{
    m_shortcuts->reload();
    const QSignalSpy groups(m_shortcuts.get(), &Shortcuts::groupsChanged);
    const QSignalSpy problem(m_shortcuts.get(), &Shortcuts::problemChanged);

    m_shortcuts->reload();

    QCOMPARE(groups.size() + problem.size(), 0);
}

void ShortcutsTest::edit_writesAMissingFileAndOpensIt()
{
    std::filesystem::path opened;
    bool wasThere = false;

    Shortcuts::edit([&](const std::filesystem::path& path) {
        opened = path;
        wasThere = std::filesystem::exists(path);
    });

    QCOMPARE(opened, nativePath(file()));
    QVERIFY(wasThere);
    QCOMPARE(Shortcuts::shared().groups().size(), 2);
}

QTEST_GUILESS_MAIN(ShortcutsTest)
#include "tst_shortcuts.moc"
