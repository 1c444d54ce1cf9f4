#include "autostartdesk.h"
#include "support/enlarge.h"

#include <memory>

using namespace Qt::StringLiterals;
using quib::AutostartEntry;

/// Which entries mean that the session starts the program.
class AutostartEntryReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<AutostartDesk>(); }
    void cleanup() { m_desk.reset(); }

    void freshAccount_isNotEnabled();
    void isEnabled_followsTheEntries_data();
    void isEnabled_followsTheEntries();
    void isEnabled_linkToNoFile_doesNotCount_data();
    void isEnabled_linkToNoFile_doesNotCount();
    void isEnabled_whatSomeSessionsPassOver_isNot_data();
    void isEnabled_whatSomeSessionsPassOver_isNot();
    void isEnabled_fileOfATerabyte_isNot();
    void isEnabled_relativeConfigFolder_isPassedOver();

private:
    std::unique_ptr<AutostartDesk> m_desk;
};

void AutostartEntryReadingTest::freshAccount_isNotEnabled()
{
    QVERIFY(!AutostartEntry().isEnabled());
    m_desk->compareWithTheDesktop();
}

void AutostartEntryReadingTest::isEnabled_followsTheEntries_data()
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
    QTest::addRow("with an action")
        << "Exec=true\n[Desktop Action x]\nExec=true\n"_ba << none << none << true;
    QTest::addRow("for this desktop")
        << "Exec=true\nOnlyShowIn=GNOME;KDE;\n"_ba << none << none << true;
    QTest::addRow("switched on by GNOME")
        << "Exec=true\nX-GNOME-Autostart-enabled=true\n"_ba << none << none << true;
}

void AutostartEntryReadingTest::isEnabled_followsTheEntries()
{
    const auto folders = {"user", "first", "second"};
    for (const auto* folder : folders) {
        const auto* column = static_cast<QByteArray*>(QTest::qData(folder, QMetaType::QByteArray));
        if (!column->isNull()) {
            const auto name
                = qstrcmp(folder, "user") == 0 ? u"config"_s : QString::fromLatin1(folder);
            m_desk->putEntry(name,
                             column->isEmpty()
                                 ? ""_ba
                                 : "[Desktop Entry]\nType=Application\nName=Quib\n" + *column);
        }
    }

    QTEST(AutostartEntry().isEnabled(), "isEnabled");
    m_desk->compareWithTheDesktop();
}

void AutostartEntryReadingTest::isEnabled_linkToNoFile_doesNotCount_data()
{
    QTest::addColumn<QString>("target");

    QTest::addRow("to nothing at all") << u"/dev/null"_s;
    QTest::addRow("to a file that is gone") << u"/not/here.desktop"_s;
}

void AutostartEntryReadingTest::isEnabled_linkToNoFile_doesNotCount()
{
    QFETCH(const QString, target);
    m_desk->putEntry(u"first"_s, "[Desktop Entry]\nType=Application\nName=Q\nExec=true\n");
    QVERIFY(QDir().mkpath(m_desk->path(u"config/autostart"_s)));
    QVERIFY(QFile::link(target, m_desk->userFile()));

    AutostartEntry entry(m_desk->install(u"quib"_s));
    QVERIFY(entry.isEnabled());
    m_desk->compareWithTheDesktop();

    QVERIFY(entry.disable());

    QVERIFY(!entry.isEnabled());
    m_desk->compareWithTheDesktop();
}

void AutostartEntryReadingTest::isEnabled_whatSomeSessionsPassOver_isNot_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::addRow("switched off by GNOME") << "X-GNOME-Autostart-enabled=false"_ba;
    QTest::addRow("for another desktop") << "OnlyShowIn=GNOME;"_ba;
    QTest::addRow("not for this desktop") << "NotShowIn=KDE;"_ba;
}

void AutostartEntryReadingTest::isEnabled_whatSomeSessionsPassOver_isNot()
{
    QFETCH(const QByteArray, line);
    m_desk->putEntry(u"config"_s,
                     "[Desktop Entry]\nType=Application\nName=Quib\nExec=true\n" + line + '\n');
    AutostartEntry entry(m_desk->install(u"quib"_s));
    QVERIFY(!entry.isEnabled());

    QVERIFY(entry.enable());

    QVERIFY(entry.isEnabled());
}

void AutostartEntryReadingTest::isEnabled_fileOfATerabyte_isNot()
{
    m_desk->putEntry(u"config"_s, "[Desktop Entry]\nType=Application\nName=Quib\nExec=true\n");
    QVERIFY(AutostartEntry().isEnabled());
    if (const auto hindrance = enlarge(m_desk->userFile(), qint64(1) << 40); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }

    QVERIFY(!AutostartEntry().isEnabled());
}

void AutostartEntryReadingTest::isEnabled_relativeConfigFolder_isPassedOver()
{
    qputenv("XDG_CONFIG_HOME", "config");
    AutostartEntry entry(m_desk->install(u"quib"_s));

    QVERIFY(entry.enable());

    QVERIFY(QFile::exists(m_desk->entryIn(u"home/.config"_s)));
    QVERIFY(entry.isEnabled());
}

QTEST_GUILESS_MAIN(AutostartEntryReadingTest)
#include "tst_autostartentryreading.moc"
