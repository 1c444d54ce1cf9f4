#include "support/panel/shelftab.h"

using namespace Qt::StringLiterals;

/// What a pointer does to the files of the shelf: takes away, opens, asks for the menu.
class ShelfPointerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shelf = std::make_unique<ShelfTab>(); }
    void cleanup() { m_shelf.reset(); }

    void removeButton_isThereUnderThePointerOnly();
    void removeButton_takesAwayItsFile();
    void removeButton_doubleClicked_takesAwayOne();
    void doubleClick_opensTheFile();
    void click_opensNothing();
    void menu_opensAndReveals();
    void menu_takesTheKeyboardAndLeavesTheFocus();
    void menu_staysInTheCard();
    void pathThatIsNotFull_isNotOpened();

private:
    std::unique_ptr<ShelfTab> m_shelf;
};

void ShelfPointerTest::removeButton_isThereUnderThePointerOnly()
{
    m_shelf->fill(2);
    QVERIFY(!m_shelf->part(0, u"remove"_s)->isVisible());

    m_shelf->move(m_shelf->tile(0));
    QVERIFY(m_shelf->part(0, u"remove"_s)->isVisible());
    QVERIFY(!m_shelf->part(1, u"remove"_s)->isVisible());

    m_shelf->move(m_shelf->tile(1));
    QVERIFY(!m_shelf->part(0, u"remove"_s)->isVisible());
}

void ShelfPointerTest::removeButton_takesAwayItsFile()
{
    m_shelf->put({u"/a"_s, u"/b"_s, u"/c"_s});

    m_shelf->move(m_shelf->tile(1));
    m_shelf->click(m_shelf->part(1, u"remove"_s));

    QCOMPARE(m_shelf->paths(), (QStringList{u"/c"_s, u"/a"_s}));
}

void ShelfPointerTest::removeButton_doubleClicked_takesAwayOne()
{
    m_shelf->fill(4);

    m_shelf->move(m_shelf->tile(1));
    m_shelf->doubleClick(m_shelf->part(1, u"remove"_s));

    QCOMPARE(m_shelf->paths().size(), 3);
    QCOMPARE(m_shelf->opener.asked, QStringList());
}

void ShelfPointerTest::doubleClick_opensTheFile()
{
    m_shelf->put({u"/home/me/a b.png"_s});

    m_shelf->doubleClick(m_shelf->tile(0));

    QCOMPARE(m_shelf->opener.asked, QStringList{u"open /home/me/a b.png"_s});
}

void ShelfPointerTest::click_opensNothing()
{
    m_shelf->fill(1);

    m_shelf->click(m_shelf->tile(0));

    QCOMPARE(m_shelf->opener.asked, QStringList());
    QCOMPARE(m_shelf->asked.filter(u"take keyboard"_s), QStringList());
}

void ShelfPointerTest::menu_opensAndReveals()
{
    m_shelf->put({u"~/odd"_s, u"/home/me/a.png"_s});
    const auto choose = [this](const QString& title) {
        QTest::mouseClick(m_shelf->window.get(), Qt::RightButton, {},
                          inScene(m_shelf->tile(0)).center().toPoint());
        QQuickItem* row = nullptr;
        QTRY_VERIFY((row = m_shelf->menuRow(title)));
        m_shelf->click(row);
    };

    choose(u"Open"_s);
    choose(u"Show in Finder"_s);

    QCOMPARE(m_shelf->opener.asked,
             (QStringList{u"open /home/me/a.png"_s, u"reveal /home/me/a.png"_s}));
}

void ShelfPointerTest::menu_takesTheKeyboardAndLeavesTheFocus()
{
    m_shelf->put({u"/b"_s, u"/a"_s});
    QWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    QTest::mouseClick(m_shelf->window.get(), Qt::RightButton, {},
                      inScene(m_shelf->tile(0)).center().toPoint());
    QTRY_VERIFY(m_shelf->menuRow(u"Open"_s));
    QCOMPARE(m_shelf->commands.asked, QStringList{u"take keyboard"_s});
    QTest::mouseClick(m_shelf->window.get(), Qt::LeftButton, {}, {380, 280});
    QTRY_VERIFY(!m_shelf->menuRow(u"Open"_s));
    m_shelf->takeKeyboard();
    m_shelf->press(Qt::Key_Right);

    QCOMPARE(m_shelf->focusedFile(), u"b"_s);
}

void ShelfPointerTest::menu_staysInTheCard()
{
    m_shelf->fill(20);
    const auto corner = inScene(m_shelf->tile(4)).bottomRight() - QPointF(3, 3);

    QTest::mouseClick(m_shelf->window.get(), Qt::RightButton, {}, corner.toPoint());

    QQuickItem* row = nullptr;
    QTRY_VERIFY((row = m_shelf->menuRow(u"Show in Finder"_s)));
    QVERIFY(QRectF(30, 0, 700, 290).contains(inScene(row)));
}

void ShelfPointerTest::pathThatIsNotFull_isNotOpened()
{
    quib::QuibData data;
    data.shelf = {{.id = QUuid::createUuid(), .path = u"example.com"_s}};
    m_shelf->store().setData(data);
    m_shelf->lookAtTheDisk();

    m_shelf->doubleClick(m_shelf->tile(0));

    QCOMPARE(m_shelf->opener.asked, QStringList());
}

QTEST_MAIN(ShelfPointerTest)
#include "tst_shelfpointer.moc"
