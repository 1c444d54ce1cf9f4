#include "platform/linux/x11/docks.h"

#include <QTest>

using namespace quib;

class DocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void visibleTop_ofTwoScreens_data();
    void visibleTop_ofTwoScreens();
};

void DocksTest::visibleTop_ofTwoScreens_data()
{
    QTest::addColumn<QList<TopStrut>>("struts");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<int>("top");

    const QRect left(0, 0, 800, 600);
    const QRect right(800, 0, 800, 600);
    const QRect below(0, 600, 800, 600);
    const TopStrut onLeft{.height = 30, .firstX = 0, .lastX = 799};
    const TopStrut onRight{.height = 40, .firstX = 800, .lastX = 1599};
    const TopStrut onBelow{.height = 650, .firstX = 0, .lastX = 799};
    using Struts = QList<TopStrut>;

    QTest::addRow("no docks") << Struts{} << left << 0;
    QTest::addRow("its own dock") << Struts{onLeft} << left << 30;
    QTest::addRow("a dock beside it") << Struts{onRight} << left << 0;
    QTest::addRow("each its own") << Struts{onLeft, onRight} << right << 40;
    QTest::addRow("two docks: the taller") << Struts{{50, 0, 799}, onLeft} << left << 50;
    QTest::addRow("a dock over both") << Struts{{25, 0, 1599}} << right << 25;
    QTest::addRow("a dock over one column of it") << Struts{{25, 1599, 1599}} << right << 25;
    QTest::addRow("a dock of the screen above") << Struts{onLeft} << below << 600;
    QTest::addRow("a dock of a lower screen") << Struts{onBelow} << below << 650;
    QTest::addRow("a dock of the screen below") << Struts{onBelow} << left << 0;
}

void DocksTest::visibleTop_ofTwoScreens()
{
    QFETCH(const QList<TopStrut>, struts);
    QFETCH(const QRect, screen);

    QTEST(visibleTop(screen, struts), "top");
}

QTEST_APPLESS_MAIN(DocksTest)
#include "tst_docks.moc"
