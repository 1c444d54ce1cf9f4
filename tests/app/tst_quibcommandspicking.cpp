#include "support/panel/delegatefortest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The card while the user chooses a folder or an application in a dialog, among fakes.
class QuibCommandsPickingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_quib.reset(); }

    void pick_startsWhereItIsTold();
    void pick_holdsTheCardOpenUntilItEnds_data();
    void pick_holdsTheCardOpenUntilItEnds();
    void picks_holdTheCardUntilTheLastOneEnds();
    void pick_givesTheKeyboardAway();
    void pick_endingAfterTheDelegate_touchesNothing();

private:
    std::unique_ptr<DelegateForTest> m_quib;
};

void QuibCommandsPickingTest::init()
{
    m_quib = std::make_unique<DelegateForTest>();
    m_quib->shell.pointer.now.position = {960, 700};
    m_quib->launched();
}

void QuibCommandsPickingTest::pick_startsWhereItIsTold()
{
    m_quib->delegate.commands().pick(true, QUrl::fromLocalFile(u"/srv/work"_s), {});
    m_quib->delegate.commands().pick(true, {}, {});
    m_quib->delegate.commands().pick(false, {}, {});

    QCOMPARE(m_quib->shell.filePicker.asked,
             (QStringList{u"folder in /srv/work"_s, u"folder in "_s, u"application"_s}));
}

void QuibCommandsPickingTest::pick_holdsTheCardOpenUntilItEnds_data()
{
    QTest::addColumn<std::optional<QUrl>>("answer");
    QTest::addColumn<int>("completions");

    QTest::addRow("chosen") << std::optional(QUrl(u"file:///srv"_s)) << 1;
    QTest::addRow("cancelled") << std::optional<QUrl>() << 0;
}

void QuibCommandsPickingTest::pick_holdsTheCardOpenUntilItEnds()
{
    QFETCH(std::optional<QUrl>, answer);
    QList<QUrl> completed;
    m_quib->delegate.life().expand(false);

    m_quib->delegate.commands().pick(true, {}, [&](const QUrl& chosen) { completed << chosen; });
    m_quib->delegate.life().checkHover();
    m_quib->hands.advance(1s);
    QVERIFY(m_quib->delegate.model().isExpanded());
    QCOMPARE(m_quib->delegate.model().holdOpen, 1);

    m_quib->shell.filePicker.open[0](answer);
    QCOMPARE(m_quib->delegate.model().holdOpen, 0);
    QTEST(int(completed.size()), "completions");
    m_quib->delegate.life().checkHover();
    m_quib->hands.advance(60ms);
    QVERIFY(!m_quib->delegate.model().isExpanded());
}

void QuibCommandsPickingTest::picks_holdTheCardUntilTheLastOneEnds()
{
    m_quib->delegate.commands().pick(true, {}, {});
    m_quib->delegate.commands().pick(false, {}, {});
    QCOMPARE(m_quib->delegate.model().holdOpen, 2);

    m_quib->shell.filePicker.open[0](std::nullopt);
    QCOMPARE(m_quib->delegate.model().holdOpen, 1);
    m_quib->shell.filePicker.open[1](std::nullopt);
    QCOMPARE(m_quib->delegate.model().holdOpen, 0);
}

void QuibCommandsPickingTest::pick_givesTheKeyboardAway()
{
    m_quib->delegate.commands().pick(true, {}, {});

    QCOMPARE(m_quib->shell.asked, QStringList{u"give back keyboard 0"_s});
}

void QuibCommandsPickingTest::pick_endingAfterTheDelegate_touchesNothing()
{
    m_quib->delegate.commands().pick(true, {}, {});
    const auto answer = m_quib->shell.filePicker.open[0];

    m_quib.reset();

    answer(std::nullopt); // The sanitizers tell when this reaches what is gone.
    QVERIFY(!m_quib);
}

QTEST_MAIN(QuibCommandsPickingTest)
#include "tst_quibcommandspicking.moc"
