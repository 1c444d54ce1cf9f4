#include "support/panel/shownpanel.h"

using namespace Qt::StringLiterals;

/// The running timer beside the collapsed notch.
class WingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

void WingsTest::leftWing_showsTheClient()
{
    const Running running;

    QCOMPARE(textOf(running.panel.item(u"clientName"_s)), u"Café"_s);
    QVERIFY(running.panel.rect(u"clientName"_s).right()
            < running.panel.rect(u"shape"_s).center().x());
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

    QVERIFY(textOf(running.panel.item(u"elapsed"_s)).startsWith(u"1:02:0"_s));
    QVERIFY(running.panel.rect(u"elapsed"_s).left() > running.panel.rect(u"shape"_s).center().x());
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
