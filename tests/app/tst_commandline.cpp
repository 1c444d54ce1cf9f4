#include "app/commandline.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::CommandLine;
using Action = quib::CommandLine::Action;

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parseArguments_data();
    void parseArguments();
};

void CommandLineTest::parseArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("folder");

    QTest::addRow("nothing") << QStringList{} << Action::Start << QString();
    QTest::addRow("unknown words") << QStringList{u"-x"_s, u"file"_s} << Action::Start << QString();
    QTest::addRow("help") << QStringList{u"--help"_s} << Action::Help << QString();
    QTest::addRow("version") << QStringList{u"--version"_s} << Action::Version << QString();
    QTest::addRow("a snapshot") << QStringList{u"--snapshot"_s, u"out"_s} << Action::Snapshot
                                << u"out"_s;
    QTest::addRow("a snapshot comes before help")
        << QStringList{u"--help"_s, u"--snapshot"_s, u"out"_s} << Action::Snapshot << u"out"_s;
    QTest::addRow("whatever follows names the folder")
        << QStringList{u"--snapshot"_s, u"--help"_s} << Action::Snapshot << u"--help"_s;
    QTest::addRow("a snapshot without a folder starts")
        << QStringList{u"--snapshot"_s} << Action::Start << QString();
    QTest::addRow("help, and a snapshot without a folder")
        << QStringList{u"--help"_s, u"--snapshot"_s} << Action::Help << QString();
}

void CommandLineTest::parseArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(Action, action);
    QFETCH(QString, folder);

    QCOMPARE(quib::parseArguments(arguments), (CommandLine{.action = action, .folder = folder}));
}

QTEST_APPLESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
