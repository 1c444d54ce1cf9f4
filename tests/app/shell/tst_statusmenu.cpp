#include "app/shell/statusmenu.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::StatusMenu;

class StatusMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rows_areTheItems();
    void check_isFoundByTitle();
    void check_ofNoSuchTitle_changesNothing();
    void choosing_tellsTheTitle();
    void choosingALineOrNothing_isPassedOver_data();
    void choosingALineOrNothing_isPassedOver();

private:
    std::unique_ptr<StatusMenu> m_menu;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void StatusMenuTest::init()
{
    m_tester.reset();
    m_menu = std::make_unique<StatusMenu>();
    m_tester = std::make_unique<QAbstractItemModelTester>(m_menu.get());
    m_menu->setItems({{.title = u"Open"_s}, {}, {.title = u"Pin"_s, .isCheckable = true}});
}

void StatusMenuTest::rows_areTheItems()
{
    QCOMPARE(m_menu->rowCount(), 3);
    QCOMPARE(m_menu->index(0).data(StatusMenu::TitleRole).toString(), u"Open"_s);
    QVERIFY(m_menu->index(1).data(StatusMenu::SeparatorRole).toBool());
    QVERIFY(!m_menu->index(2).data(StatusMenu::CheckedRole).toBool());
}

void StatusMenuTest::check_isFoundByTitle()
{
    m_menu->setChecked(u"Pin"_s, true);

    QVERIFY(m_menu->index(2).data(StatusMenu::CheckedRole).toBool());
}

void StatusMenuTest::check_ofNoSuchTitle_changesNothing()
{
    const QSignalSpy changed(m_menu.get(), &QAbstractItemModel::dataChanged);

    m_menu->setChecked(u"pin"_s, true);

    QVERIFY(changed.isEmpty());
}

void StatusMenuTest::choosing_tellsTheTitle()
{
    const QSignalSpy chosen(m_menu.get(), &StatusMenu::chosen);

    m_menu->choose(2);

    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0][0].toString(), u"Pin"_s);
}

void StatusMenuTest::choosingALineOrNothing_isPassedOver_data()
{
    QTest::addColumn<int>("row");

    QTest::addRow("a separator") << 1;
    QTest::addRow("before the first") << -1;
    QTest::addRow("after the last") << 3;
}

void StatusMenuTest::choosingALineOrNothing_isPassedOver()
{
    QFETCH(int, row);
    const QSignalSpy chosen(m_menu.get(), &StatusMenu::chosen);

    m_menu->choose(row);

    QVERIFY(chosen.isEmpty());
}

QTEST_APPLESS_MAIN(StatusMenuTest)
#include "tst_statusmenu.moc"
