#include "platform/linux/x11/keyboard/keyrepeat.h"

#include <QTest>

using quib::KeyRepeat;

class KeyRepeatTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_repeat = {}; }

    void press_isARepeatAtTheMomentOfItsRelease_data();
    void press_isARepeatAtTheMomentOfItsRelease();
    void press_thatQtTakesForARepeat_isOne();
    void firstPress_isNone();

private:
    bool isRepeat(QEvent::Type type, quint32 key, quint64 time, bool isAutoRepeat = false);

    KeyRepeat m_repeat;
};

bool KeyRepeatTest::isRepeat(QEvent::Type type, quint32 key, quint64 time, bool isAutoRepeat)
{
    QKeyEvent event(type, Qt::Key_Space, {}, key, 0, 0, {}, isAutoRepeat);
    event.setTimestamp(time);
    return m_repeat.isRepeat(event);
}

void KeyRepeatTest::press_isARepeatAtTheMomentOfItsRelease_data()
{
    QTest::addColumn<quint32>("key");
    QTest::addColumn<quint64>("pressed");
    QTest::addColumn<bool>("isRepeat");

    QTest::addRow("the same moment") << 65U << quint64(5000) << true;
    QTest::addRow("the server's next look at the clock") << 65U << quint64(5001) << true;
    QTest::addRow("a very fast finger") << 65U << quint64(5010) << false;
    QTest::addRow("another key") << 36U << quint64(5000) << false;
    QTest::addRow("the server's clock starts over") << 65U << quint64(3) << false;
}

void KeyRepeatTest::press_isARepeatAtTheMomentOfItsRelease()
{
    QFETCH(const quint32, key);
    QFETCH(const quint64, pressed);
    isRepeat(QEvent::KeyPress, 65, 4000);
    isRepeat(QEvent::KeyRelease, 65, 5000);

    QTEST(isRepeat(QEvent::KeyPress, key, pressed), "isRepeat");
}

void KeyRepeatTest::press_thatQtTakesForARepeat_isOne()
{
    QVERIFY(isRepeat(QEvent::KeyPress, 65, 5000, true));
}

void KeyRepeatTest::firstPress_isNone()
{
    QVERIFY(!isRepeat(QEvent::KeyPress, 65, 5000));
}

QTEST_GUILESS_MAIN(KeyRepeatTest)
#include "tst_keyrepeat.moc"
