#include "desktop/desk/desk.h"
#include "support/writefile.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// The desktop's scale, changed under the running program as a settings daemon tells it.
class RescalingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void otherScale_thePanelIsDrawnWhole();
    void otherScaleWhileOpen_thePanelIsDrawnWhole();
};

namespace {

/// A point of the open home tab, right of its middle and near its lower edge: on a card, whose fill
/// is not the panel's black. Seen from the middle of the screen's top edge.
constexpr QPoint OnTheLastCard{250, 200};

class Settings {
public:
    explicit Settings(Desk& desk)
        : m_desk(desk)
    {
        write(1);
        m_daemon = desk.start(u"xsettingsd"_s, {u"-c"_s, desk.folder(u"settings"_s)});
    }

    void setScale(double scale)
    {
        write(scale);
        kill(pid_t(m_daemon->processId()), SIGHUP);
    }

private:
    void write(double scale)
    {
        writeFile(m_desk.folder(u"settings"_s),
                  "Xft/DPI " + QByteArray::number(qRound(96 * 1024 * scale)) + '\n');
    }

    Desk& m_desk;
    Program m_daemon;
};

QColor onTheLastCard(const Desk& desk, double scale)
{
    return desk.pixel(QPoint(800, 0) + OnTheLastCard * scale);
}

bool isOpenAtScale(const Desk& desk, double scale)
{
    const auto edge = desk.pixel({800, qRound(296 * scale)}); // Beneath the card.
    const auto card = onTheLastCard(desk, scale);
    return edge != QColor(Qt::black) && card != QColor(Qt::black) && card != edge;
}

} // namespace

void RescalingTest::otherScale_thePanelIsDrawnWhole()
{
    Desk desk;
    Settings settings(desk);
    const auto quib = desk.startQuib();

    for (const double scale : {1.5, 2.0, 1.0, 1.25}) {
        settings.setScale(scale);
        desk.moveTo(Desk::Notch);
        QTRY_VERIFY_WITH_TIMEOUT(isOpenAtScale(desk, scale), 10'000);
        desk.moveTo(Desk::FarAway);
        QTRY_VERIFY(!isOpenAtScale(desk, scale));
    }
}

void RescalingTest::otherScaleWhileOpen_thePanelIsDrawnWhole()
{
    Desk desk;
    Settings settings(desk);
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    settings.setScale(1.5);

    QTRY_VERIFY_WITH_TIMEOUT(isOpenAtScale(desk, 1.5), 10'000);
}

QTEST_GUILESS_MAIN(RescalingTest)
#include "tst_rescaling.moc"
