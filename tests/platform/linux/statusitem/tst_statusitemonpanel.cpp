#include "brand/brand.h"
#include "platform/linux/base/connectedbus.h"
#include "platform/linux/statusitem/statusfixture.h"
#include "platform/linux/statusitem/statusnotifier.h"
#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "support/writefile.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

using Variables = QMap<QString, QString>;

/// One bar along the upper edge, with status items and nothing else.
constexpr auto PanelSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
)";

/// A desktop's panel, which has the look of that theme.
class Panel {
public:
    explicit Panel(const QString& theme)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"GTK_THEME"_s, theme);
        m_process.setProcessEnvironment(environment);
        m_process.start(u"xfce4-panel"_s, {u"--disable-wm-check"_s});
    }

    ~Panel()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

private:
    QProcess m_process;
};

QImage picture()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(
        QImage::Format_RGB32);
}

/// What encloses all pixels of which that is said.
template <typename Says>
QRect areaWhere(const QSize& size, const Says& says)
{
    QRect area;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (says(x, y)) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

QRect iconArea()
{
    const auto screen = picture();
    return areaWhere(screen.size(), [&screen](int x, int y) {
        return screen.pixel(x, y) == Brand::purple().rgb();
    });
}

} // namespace

/// The status item on a real panel, in the eyes and hands of its user.
class StatusItemOnPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void icon_isSeen_data();
    void icon_isSeen();
    void icon_panelStartsAgain_isSeenAgain();
    void press_asksForCheckMarksAndOpensTheMenu();
    void quit_byClick();
    void quit_byKeys();

private:
    void writeSettings() const;
    void startPanel(const QString& theme = u"Adwaita"_s);
    void stopPanel();
    void openMenu();
    QRect menuArea() const;

    QTemporaryDir m_home;
    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<StatusNotifier> m_item;
    QImage m_withoutMenu;
};

/// Everything that the panel and what it starts read and write lies in the test's own folder.
void StatusItemOnPanelTest::initTestCase()
{
    Variables variables{{u"HOME"_s, m_home.path()},
                        {u"NO_AT_BRIDGE"_s, u"1"_s},
                        {u"GSETTINGS_BACKEND"_s, u"memory"_s},
                        {u"GIO_USE_VFS"_s, u"local"_s}};
    for (const auto& kind : {u"CONFIG_HOME"_s, u"DATA_HOME"_s, u"CACHE_HOME"_s, u"RUNTIME_DIR"_s}) {
        QVERIFY(QDir(m_home.path()).mkdir(kind));
        variables.insert(u"XDG_"_s + kind, m_home.filePath(kind));
    }
    for (const auto& [name, value] : variables.asKeyValueRange()) {
        qputenv(name.toLatin1().constData(), value.toUtf8());
    }
    qDBusRegisterMetaType<Variables>(); // For what the bus starts.
    const auto reply = QDBusConnection::sessionBus().interface()->call(
        u"UpdateActivationEnvironment"_s, QVariant::fromValue(variables));
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    writeSettings();
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
}

void StatusItemOnPanelTest::writeSettings() const
{
    const auto folder = m_home.filePath(u"CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml"_s);
    writeFile(folder + u"/xfce4-panel.xml"_s, PanelSettings);
}

void StatusItemOnPanelTest::init()
{
    movePointer({800, 600});
    m_item = std::make_unique<StatusNotifier>(connectedBus());
    m_item->install(squareIcon());
    m_item->setMenu(quibMenu());
}

void StatusItemOnPanelTest::cleanup()
{
    m_item.reset();
    stopPanel();
}

void StatusItemOnPanelTest::startPanel(const QString& theme)
{
    m_panel = std::make_unique<Panel>(theme);
    QTRY_VERIFY_WITH_TIMEOUT(m_item->isShown(), 20'000);
    QTRY_VERIFY(iconArea().width() >= 10);
    m_withoutMenu = picture();
}

void StatusItemOnPanelTest::stopPanel()
{
    m_panel.reset();
    auto* bus = QDBusConnection::sessionBus().interface();
    QTRY_VERIFY(!bus->isServiceRegistered(u"org.kde.StatusNotifierWatcher"_s));
}

/// A panel that has only just started passes over presses: its user presses again.
void StatusItemOnPanelTest::openMenu()
{
    bool isOpen = false;
    for (int presses = 0; presses < 10 && !isOpen; ++presses) {
        click(iconArea().center());
        isOpen = QTest::qWaitFor([this] { return menuArea().height() > 100; }, 2000);
    }
    QVERIFY(isOpen);
}

/// The icon may be part of it: it lights up.
QRect StatusItemOnPanelTest::menuArea() const
{
    const auto screen = picture();
    return areaWhere(screen.size(),
                     [&](int x, int y) { return screen.pixel(x, y) != m_withoutMenu.pixel(x, y); });
}

void StatusItemOnPanelTest::icon_isSeen_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("isDark");

    QTest::addRow("on a light panel") << u"Adwaita"_s << false;
    QTest::addRow("on a dark panel") << u"Adwaita:dark"_s << true;
}

void StatusItemOnPanelTest::icon_isSeen()
{
    QFETCH(const QString, theme);

    startPanel(theme);

    const auto beside = m_withoutMenu.pixelColor(iconArea().right() + 200, iconArea().center().y());
    QTEST(beside.lightnessF() < 0.5F, "isDark");
    QVERIFY(iconArea().bottom() < 40);
}

void StatusItemOnPanelTest::icon_panelStartsAgain_isSeenAgain()
{
    startPanel();
    stopPanel();
    QTRY_VERIFY(!m_item->isShown());
    QTRY_VERIFY(iconArea().isEmpty());

    startPanel();

    QVERIFY(!iconArea().isEmpty());
}

void StatusItemOnPanelTest::press_asksForCheckMarksAndOpensTheMenu()
{
    const QSignalSpy openings(m_item.get(), &StatusItem::menuWillOpen);
    const QSignalSpy presses(m_item.get(), &StatusItem::pressed);
    startPanel();

    openMenu();

    QTRY_VERIFY(!openings.isEmpty());
    QCOMPARE(presses.size(), 0);
}

void StatusItemOnPanelTest::quit_byClick()
{
    const QSignalSpy choices(m_item.get(), &StatusItem::chosen);
    startPanel();
    openMenu();

    click({menuArea().center().x(), menuArea().bottom() - 14}); // The last line.

    QTRY_COMPARE(choices.size(), 1);
    QCOMPARE(choices.first(), QVariantList{QuitRow});
}

void StatusItemOnPanelTest::quit_byKeys()
{
    const QSignalSpy choices(m_item.get(), &StatusItem::chosen);
    startPanel();
    openMenu();

    xdotool({u"key"_s, u"Up"_s, u"Return"_s}); // From the end.

    QTRY_COMPARE(choices.size(), 1);
    QCOMPARE(choices.first(), QVariantList{QuitRow});
}

QTEST_MAIN(StatusItemOnPanelTest)
#include "tst_statusitemonpanel.moc"
