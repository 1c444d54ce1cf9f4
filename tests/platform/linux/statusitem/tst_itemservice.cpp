#include "brand/brand.h"
#include "platform/linux/statusitem/itemonbus.h"

#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace quib;

/// The item as a status bar reads and presses it.
class ItemServiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    static void properties_data();
    static void properties();
    static void toolTip_namesTheProgram();
    static void icon_isInTheBrandsColour();
    static void icon_hasEachSizeGiven();
    static void pressed_byActivate();
    static void otherGestures_areTakenForNothing_data();
    static void otherGestures_areTakenForNothing();
};

namespace {

const auto ItemPath = u"/StatusNotifierItem"_s;
const auto ItemInterface = u"org.kde.StatusNotifierItem"_s;

QRgb pixel(const IconPixmap& pixmap, qsizetype index)
{
    return qFromBigEndian<QRgb>(pixmap.pixels.constData() + 4 * index);
}

} // namespace

void ItemServiceTest::properties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const QString& name, const QVariant& value) {
        QTest::addRow("%s", qPrintable(name)) << name << value;
    };
    row(u"Category"_s, u"ApplicationStatus"_s);
    row(u"Id"_s, u"korvel-quib"_s);
    row(u"Title"_s, u"Korvel Quib"_s);
    row(u"Status"_s, u"Active"_s);
    row(u"IconName"_s, QString());
    row(u"IconAccessibleDesc"_s, u"Korvel Quib"_s);
    row(u"ItemIsMenu"_s, true);
    row(u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/MenuBar"_s)));
}

void ItemServiceTest::properties()
{
    QFETCH(const QString, name);
    const ItemOnBus item;

    QTEST(item.properties(ItemPath, ItemInterface).value(name), "value");
}

void ItemServiceTest::toolTip_namesTheProgram()
{
    const ItemOnBus item;

    const auto toolTip
        = qdbus_cast<IconToolTip>(item.properties(ItemPath, ItemInterface).value(u"ToolTip"_s));

    QCOMPARE(toolTip.title, u"Korvel Quib"_s);
}

void ItemServiceTest::icon_isInTheBrandsColour()
{
    const ItemOnBus item;

    const auto pixmaps = qdbus_cast<QList<IconPixmap>>(
        item.properties(ItemPath, ItemInterface).value(u"IconPixmap"_s));

    for (const auto& pixmap : pixmaps) {
        const auto middle = (pixmap.height / 2) * pixmap.width + pixmap.width / 2;
        QCOMPARE(pixel(pixmap, 0), 0U); // The corner is empty.
        QCOMPARE(pixel(pixmap, middle), Brand::purple().rgba());
    }
}

void ItemServiceTest::icon_hasEachSizeGiven()
{
    const ItemOnBus item;

    const auto pixmaps = qdbus_cast<QList<IconPixmap>>(
        item.properties(ItemPath, ItemInterface).value(u"IconPixmap"_s));

    QList<int> sides;
    for (const auto& pixmap : pixmaps) {
        QCOMPARE(pixmap.width, pixmap.height);
        QCOMPARE(pixmap.pixels.size(), 4 * pixmap.width * pixmap.height);
        sides << pixmap.width;
    }
    QCOMPARE(sides, QList<int>({16, 22, 24, 32, 48}));
}

void ItemServiceTest::pressed_byActivate()
{
    ItemOnBus item;
    const QSignalSpy presses(item.get(), &StatusItem::pressed);

    const auto reply = item.callItem(u"Activate"_s, {100, 200});

    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(presses.size(), 1);
}

void ItemServiceTest::otherGestures_areTakenForNothing_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    QTest::addRow("the wheel") << u"Scroll"_s << QVariantList{120, u"vertical"_s};
    QTest::addRow("the middle button") << u"SecondaryActivate"_s << QVariantList{1, 2};
    QTest::addRow("the right button") << u"ContextMenu"_s << QVariantList{1, 2};
}

void ItemServiceTest::otherGestures_areTakenForNothing()
{
    QFETCH(const QString, method);
    QFETCH(const QVariantList, arguments);
    ItemOnBus item;
    const QSignalSpy presses(item.get(), &StatusItem::pressed);
    const QSignalSpy choices(item.get(), &StatusItem::chosen);

    const auto reply = item.callItem(method, arguments);
    QTest::qWait(0);

    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(presses.size() + choices.size(), 0);
}

QTEST_MAIN(ItemServiceTest)
#include "tst_itemservice.moc"
