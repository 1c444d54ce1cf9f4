#include "support/shownpanel.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::Tab;

/// The running timer beside the collapsed notch, read from the live items.
class WingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wings_standAtBothEndsOfTheShape();
    void leftWing_showsTheClient();
    void longName_staysInItsWing();
    void rightWing_showsTheTimeWithSeconds();
    void pulse_beatsOnlyWhileItIsSeen();
};

namespace {

/// A panel whose timer has run for 1:02:05.
struct Running {
    ShownPanel panel;

    explicit Running(const QString& client = u"Café"_s)
    {
        const auto id = panel.workspace.client(client);
        auto data = panel.workspace.store->data();
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = id,
                             .start = QDateTime::currentDateTimeUtc().addSecs(-3725)});
        panel.workspace.store->setData(data);
    }
};

} // namespace

void WingsTest::wings_standAtBothEndsOfTheShape()
{
    const Running running;
    const auto shape = running.panel.rect(u"shape"_s);

    QCOMPARE(running.panel.rect(u"leftWing"_s), QRectF(shape.topLeft(), QSizeF(92, 37)));
    QCOMPARE(running.panel.rect(u"rightWing"_s),
             QRectF(shape.topRight() - QPointF(92, 0), QSizeF(92, 37)));
}

void WingsTest::leftWing_showsTheClient()
{
    const Running running;
    const auto wing = running.panel.rect(u"leftWing"_s);
    const auto dot = running.panel.rect(u"dot"_s);
    const auto* name = running.panel.item(u"clientName"_s);

    QCOMPARE(dot.size(), QSizeF(7, 7));
    QCOMPARE(dot.left(), wing.left() + 14);
    QCOMPARE(colorOf(running.panel.item(u"dot"_s)), Brand::live());
    QCOMPARE(inScene(name).left(), dot.right() + 6);
    QCOMPARE(textOf(name), u"Café"_s);
    QCOMPARE(numberOf(name, "size"), 11.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::DemiBold));
    QCOMPARE(colorOf(name), Brand::white(0.9));
}

void WingsTest::longName_staysInItsWing()
{
    const Running running(u"Sixty letters of a name that no wing of a notch will ever hold"_s);

    QCOMPARE(running.panel.rect(u"clientName"_s).right(),
             running.panel.rect(u"leftWing"_s).right() - 14);
}

void WingsTest::rightWing_showsTheTimeWithSeconds()
{
    const Running running;
    const auto* elapsed = running.panel.item(u"elapsed"_s);

    QVERIFY(textOf(elapsed).startsWith(u"1:02:0"_s));
    QCOMPARE(numberOf(elapsed, "size"), 11.5);
    QCOMPARE(colorOf(elapsed), Brand::glow());
    QCOMPARE(inScene(elapsed).right(), running.panel.rect(u"rightWing"_s).right() - 14);
}

void WingsTest::pulse_beatsOnlyWhileItIsSeen()
{
    Running running;
    auto* dot = running.panel.item(u"dot"_s);
    QCOMPARE(dot->opacity(), 1.0);

    running.panel.model.setMotionReduced(false);
    QTRY_VERIFY(dot->opacity() < 0.5);
    QVERIFY(dot->opacity() >= 0.35);

    running.panel.model.setExpanded(true);
    QTRY_COMPARE(dot->opacity(), 1.0); // At rest.
}

QTEST_MAIN(WingsTest)
#include "tst_wings.moc"
