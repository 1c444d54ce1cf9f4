#include "app/notch/notchmodel.h"

#include <QSignalSpy>
#include <QTest>

using quib::NotchModel;
using quib::Tab;

class NotchModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void freshModel_isACollapsedHome();
    void changes_areAnnouncedOnce();
    void setterThatChangesNothing_saysNothing();
};

void NotchModelTest::freshModel_isACollapsedHome()
{
    const NotchModel model;

    QVERIFY(!model.isExpanded());
    QCOMPARE(model.tab(), Tab::Home);
    QVERIFY(!model.isPinned());
    QVERIFY(!model.isDropTargeted());
    QCOMPARE(model.notchSize(), QSizeF(200, 32));
    QVERIFY(model.hasNotch());
    QVERIFY(!model.isMotionReduced());
    QCOMPARE(model.holdOpen, 0);
}

void NotchModelTest::changes_areAnnouncedOnce()
{
    NotchModel model;
    const QSignalSpy expanded(&model, &NotchModel::isExpandedChanged);
    const QSignalSpy tab(&model, &NotchModel::tabChanged);
    const QSignalSpy pinned(&model, &NotchModel::isPinnedChanged);
    const QSignalSpy targeted(&model, &NotchModel::isDropTargetedChanged);
    const QSignalSpy size(&model, &NotchModel::notchSizeChanged);
    const QSignalSpy hasNotch(&model, &NotchModel::hasNotchChanged);

    model.setExpanded(true);
    model.setTab(Tab::Tasks);
    model.setPinned(true);
    model.setDropTargeted(true);
    model.setNotchSize({188, 37});
    model.setHasNotch(false);

    for (const auto* spy : {&expanded, &tab, &pinned, &targeted, &size, &hasNotch}) {
        QCOMPARE(spy->count(), 1);
    }
}

void NotchModelTest::setterThatChangesNothing_saysNothing()
{
    NotchModel model;
    const QSignalSpy expanded(&model, &NotchModel::isExpandedChanged);

    model.setExpanded(false);

    QCOMPARE(expanded.count(), 0);
}

QTEST_GUILESS_MAIN(NotchModelTest)
#include "tst_notchmodel.moc"
