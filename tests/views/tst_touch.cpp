#include "support/panel/taskstab.h"

#include <QPointingDevice>

using namespace Qt::StringLiterals;

/// The panel under a finger.
class TouchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tapOnAField_takesTheKeyboard();
    void tapOnAButton_leavesTheKeyboardWhereItIs();
    void swipeThatEndsOverAField_leavesTheKeyboardWhereItIs();

private:
    void tap(const QQuickItem* on);

    TasksTab m_tab;
    std::unique_ptr<QPointingDevice> m_finger{QTest::createTouchDevice()};
};

void TouchTest::tap(const QQuickItem* on)
{
    const auto place = inScene(on).center().toPoint();
    m_tab.asked.clear();
    QTest::touchEvent(m_tab.window.get(), m_finger.get()).press(0, place);
    QTest::touchEvent(m_tab.window.get(), m_finger.get()).release(0, place);
}

void TouchTest::tapOnAField_takesTheKeyboard()
{
    tap(m_tab.item(u"newTitle"_s));

    QTRY_VERIFY(m_tab.asked.contains(u"take keyboard"_s));
    QVERIFY(m_tab.item(u"newTitle"_s)->property("isEditing").toBool());
}

void TouchTest::tapOnAButton_leavesTheKeyboardWhereItIs()
{
    tap(m_tab.item(u"pin"_s));

    QTRY_VERIFY(m_tab.model.isPinned());
    m_tab.settle();
    QCOMPARE(m_tab.asked, QStringList());
}

void TouchTest::swipeThatEndsOverAField_leavesTheKeyboardWhereItIs()
{
    const auto* field = m_tab.item(u"newTitle"_s);
    tap(field);
    QTRY_VERIFY(m_tab.asked.contains(u"take keyboard"_s));
    m_tab.asked.clear();
    const auto end = inScene(field).center().toPoint();
    const auto start = end + QPoint(0, 120);

    QTest::touchEvent(m_tab.window.get(), m_finger.get()).press(0, start);
    QTest::touchEvent(m_tab.window.get(), m_finger.get()).move(0, (start + end) / 2);
    QTest::touchEvent(m_tab.window.get(), m_finger.get()).move(0, end);
    QTest::touchEvent(m_tab.window.get(), m_finger.get()).release(0, end);

    m_tab.settle();
    QVERIFY(field->property("isEditing").toBool());
    QCOMPARE(m_tab.asked, QStringList());
}

QTEST_MAIN(TouchTest)
#include "tst_touch.moc"
