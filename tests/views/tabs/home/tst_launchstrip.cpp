#include "support/panel/launchstrip.h"
#include "support/toldtext.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// The quick-launch strip as its user meets it.
class LaunchStripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_strip = std::make_unique<LaunchStrip>(); }
    void cleanup() { m_strip.reset(); }

    void launch_opensItsTarget();
    void launch_doubleClicked_opensItOnce();
    void icons_areThoseOfPaths();
    void icon_ofAPathIsAskedForAtItsSize();
    void icon_isAskedForAnewWhenItIsSeenAgain();
    void manyItems_scroll();
    void fades_tellThatMoreIsThere();
    void names_tellWhatPressingDoes();

private:
    std::unique_ptr<LaunchStrip> m_strip;
};

void LaunchStripTest::launch_opensItsTarget()
{
    m_strip->launch(u"Mail"_s, u"mail.example"_s);

    m_strip->push(u"launch"_s);

    QCOMPARE(m_strip->opener.asked, QStringList{u"browse https://mail.example"_s});
}

void LaunchStripTest::launch_doubleClicked_opensItOnce()
{
    m_strip->launch(u"Mail"_s, u"mail.example"_s);

    m_strip->doubleClick(m_strip->part(u"launch"_s));

    QCOMPARE(m_strip->opener.asked.size(), 1);
}

void LaunchStripTest::icons_areThoseOfPaths()
{
    m_strip->launch(u"Mail"_s, u"mail.example"_s);
    m_strip->launch(u"Files"_s, u"/usr/share/applications/files.desktop"_s);
    const auto rows = m_strip->items();

    QVERIFY(ShownPanel::find(rows[0], u"globe"_s)->isVisible());
    QVERIFY(!ShownPanel::find(rows[1], u"globe"_s)->isVisible());
    QCOMPARE(m_strip->icons.open.size(), 1);
    QCOMPARE(m_strip->icons.open.front().path, u"/usr/share/applications/files.desktop"_s);
}

void LaunchStripTest::icon_ofAPathIsAskedForAtItsSize()
{
    m_strip->launch(u"Files"_s, u"~/files.desktop"_s);
    const auto& asked = m_strip->icons.open;
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.front().path, QDir::homePath() + u"/files.desktop"_s);
    QCOMPARE(asked.front().pixels, qRound(16 * m_strip->window->effectiveDevicePixelRatio()));
    const auto middle = inScene(m_strip->part(u"icon"_s)).center().toPoint();

    m_strip->icons.answerAll(Qt::red);
    m_strip->settle();

    const auto picture = m_strip->window->grabWindow();
    const auto scale = m_strip->window->effectiveDevicePixelRatio();
    QCOMPARE(picture.pixelColor(middle * scale), QColor(Qt::red));
}

void LaunchStripTest::icon_isAskedForAnewWhenItIsSeenAgain()
{
    m_strip->launch(u"Files"_s, u"/media/disk/files.desktop"_s);
    m_strip->icons.answerAll(Qt::red);

    m_strip->model.setExpanded(false);
    QCOMPARE(m_strip->icons.open.size(), 0);
    m_strip->model.setExpanded(true);

    QCOMPARE(m_strip->icons.open.size(), 1);
}

void LaunchStripTest::manyItems_scroll()
{
    m_strip->fill(40, u"A website with a rather long name, number %1"_s);
    const auto* list = m_strip->part(u"items"_s);

    QVERIFY(numberOf(list, "contentWidth") > list->width());
    for (const auto* row : m_strip->items()) {
        QVERIFY(inScene(row).width() <= 12 + 16 + 7 + 140 + 12);
    }
    QVERIFY(m_strip->part(u"edit"_s)->isVisible());
}

void LaunchStripTest::fades_tellThatMoreIsThere()
{
    const auto fades = [this] {
        return std::pair(m_strip->part(u"moreBefore"_s)->isVisible(),
                         m_strip->part(u"moreAfter"_s)->isVisible());
    };
    QCOMPARE(fades(), std::pair(false, false));
    m_strip->fill(2);
    QCOMPARE(fades(), std::pair(false, false));

    m_strip->fill(40);
    QCOMPARE(fades(), std::pair(false, true));
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_strip->press(Qt::Key_Right);
    QCOMPARE(fades(), std::pair(false, true));
    m_strip->press(Qt::Key_End);
    QCOMPARE(fades(), std::pair(true, false));
    for (int number = 0; number < 20; ++number) {
        m_strip->press(Qt::Key_Left);
    }
    QCOMPARE(fades(), std::pair(true, true));
}

void LaunchStripTest::names_tellWhatPressingDoes()
{
    m_strip->launch(u"Mail %1"_s, u"mail.example"_s);
    QCOMPARE(toldOf(m_strip->part(u"launch"_s)), u"Open Mail %1"_s);
    QCOMPARE(toldOf(m_strip->part(u"launch"_s), QAccessible::Description), u"mail.example"_s);
    QCOMPARE(toldOf(m_strip->part(u"remove"_s)), u"Remove Mail %1"_s);
    QCOMPARE(toldOf(m_strip->part(u"edit"_s)), u"Edit quick launch"_s);

    m_strip->startEditing();

    QCOMPARE(toldOf(m_strip->part(u"edit"_s)), u"Done editing quick launch"_s);
    QCOMPARE(textOf(m_strip->part(u"edit"_s), "help"), u"Edit quick launch"_s);

    m_strip->store().removeLaunchItem(m_strip->store().data().launch.front().id);
    m_strip->settle();
    m_strip->launch(QString(100'000, u'w'), QString(100'000, u'w'));
    for (auto* item : {m_strip->part(u"launch"_s), m_strip->part(u"remove"_s)}) {
        QVERIFY(toldOf(item).size() < 400);
        QVERIFY(toldOf(item, QAccessible::Description).size() < 400);
    }
}

QTEST_MAIN(LaunchStripTest)
#include "tst_launchstrip.moc"
