#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"
#include "platform/linux/x11/xcbpointersource.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// The keyboard among windows that a window manager looks after, each clicked to be focused.
class KeyboardWithWindowManagerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void clickOnAPlainPartOfThePanel_leavesTheKeyboard();
    void giveBackKeyboard_pointerLeft_returnsIt();
    void giveBackKeyboard_clickedAnotherWindow_leavesItThere();
    void giveBackKeyboard_clickedTheDesktop_takesItFromThePanel();
    void giveBackKeyboard_lenderHasEnded_letsTheWindowManagerChoose();

private:
    static std::unique_ptr<OtherProgram> shownAt(QPoint corner);
    xcb_window_t native() const { return xcb_window_t(m_panel->winId()); }

    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<XcbPointerSource> m_pointer;
    std::unique_ptr<XcbPanelHost> m_host;
    std::unique_ptr<QWindow> m_panel;
    std::unique_ptr<OtherProgram> m_lender;
    std::unique_ptr<OtherProgram> m_another;
};

void KeyboardWithWindowManagerTest::initTestCase()
{
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
    m_pointer = std::make_unique<XcbPointerSource>();
    connect(m_pointer.get(), &PointerSource::clicked, this,
            [this](quint32 time) { m_host->giveBackKeyboard(time); });
}

void KeyboardWithWindowManagerTest::init()
{
    m_panel = std::make_unique<QWindow>();
    m_host = std::make_unique<XcbPanelHost>();
    m_host->adopt(*m_panel);
    m_host->place({600, 0, 300, 200});
    m_host->setInputRegion(QRect(0, 0, 300, 200));
    m_host->orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    m_another = shownAt({800, 400});
    m_lender = shownAt({100, 400});
    QTRY_COMPARE((click({200, 500}), keyboardOwner()), m_lender->window());
    QTest::qWait(0);
}

void KeyboardWithWindowManagerTest::cleanup()
{
    m_host.reset();
    m_panel.reset();
    m_lender.reset();
    m_another.reset();
}

std::unique_ptr<OtherProgram> KeyboardWithWindowManagerTest::shownAt(QPoint corner)
{
    auto program = std::make_unique<OtherProgram>(QRect(corner, QSize(300, 200)),
                                                  OtherProgram::Placing::ByWindowManager);
    program->setPlace(corner);
    program->show();
    return program;
}

void KeyboardWithWindowManagerTest::clickOnAPlainPartOfThePanel_leavesTheKeyboard()
{
    click({700, 100});

    QTest::qWait(0);
    QCOMPARE(keyboardOwner(), m_lender->window());
}

void KeyboardWithWindowManagerTest::giveBackKeyboard_pointerLeft_returnsIt()
{
    m_host->takeKeyboard();
    QCOMPARE(keyboardOwner(), native());

    m_host->giveBackKeyboard({});

    QTRY_COMPARE(keyboardOwner(), m_lender->window());
}

void KeyboardWithWindowManagerTest::giveBackKeyboard_clickedAnotherWindow_leavesItThere()
{
    const QSignalSpy clicks(m_pointer.get(), &PointerSource::clicked);
    for (qsizetype round = 1; round <= 10; ++round) {
        click({200, 500});
        QTRY_COMPARE(keyboardOwner(), m_lender->window());
        m_host->takeKeyboard();
        QCOMPARE(keyboardOwner(), native());

        const RunningProgram user(
            {u"xdotool"_s, u"mousemove"_s, u"900"_s, u"500"_s, u"click"_s, u"1"_s});
        QTRY_COMPARE(clicks.size(), 2 * round); // Given back by now.

        QTRY_COMPARE(keyboardOwner(), m_another->window());
    }
}

void KeyboardWithWindowManagerTest::giveBackKeyboard_clickedTheDesktop_takesItFromThePanel()
{
    m_host->takeKeyboard();
    QCOMPARE(keyboardOwner(), native());

    click({1500, 850});

    QTRY_VERIFY(keyboardOwner() != native());
}

void KeyboardWithWindowManagerTest::giveBackKeyboard_lenderHasEnded_letsTheWindowManagerChoose()
{
    m_host->takeKeyboard();
    m_lender->end();

    m_host->giveBackKeyboard({});

    QTRY_VERIFY(keyboardOwner() != native());
}

QTEST_MAIN(KeyboardWithWindowManagerTest)
#include "tst_keyboardwithwindowmanager.moc"
