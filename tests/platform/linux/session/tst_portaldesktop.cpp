#include "platform/linux/base/connectedbus.h"
#include "platform/linux/session/portaldesktop.h"
#include "platform/platform.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

using Settings = QMap<QString, QVariantMap>;

/// The desktop's portal, on a connection of its own.
class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Settings settings;
    bool isHung = false;
    int questions = 0;

    bool start()
    {
        return m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                                    QDBusConnection::ExportScriptableContents)
            && m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

    void stop()
    {
        m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
        m_bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
    }

    void change(const QString& space, const QString& key, const QVariant& value)
    {
        settings[space][key] = value;
        Q_EMIT SettingChanged(space, key, QDBusVariant(value));
    }

public Q_SLOTS:
    Q_SCRIPTABLE Settings ReadAll(const QStringList& /*namespaces*/, const QDBusMessage& message)
    {
        ++questions;
        message.setDelayedReply(isHung);
        return settings;
    }

Q_SIGNALS:
    // NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): moc has its own names
    Q_SCRIPTABLE void SettingChanged(const QString& space, const QString& key,
                                     const QDBusVariant& value);

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
};

class PortalDesktopTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    static void initTestCase();
    void init();
    void cleanup();
    void isMotionReduced_data();
    void isMotionReduced();
    void isMotionReduced_noPortal_isFalse();
    void isMotionReduced_hungPortal_isFalse();
    void isMotionReduced_untilTheAnswer_isFalse();
    void isMotionReduced_portalStartsLater_asksIt();
    void isMotionReduced_followsChanges();
    void isMotionReducedChanged_onlyWhenItChanges();
    void isMotionReduced_noBus_isFalse();
    void iconTheme_isTheUsersChoice();
    void fontFamily_withoutADesktop_isInter();

private:
    std::unique_ptr<FakePortal> m_portal;
};

namespace {

constexpr auto Interface = "org.gnome.desktop.interface"_L1;
constexpr auto Animations = "enable-animations"_L1;
constexpr auto Appearance = "org.freedesktop.appearance"_L1;
constexpr auto ReducedMotion = "reduced-motion"_L1;
constexpr auto IconTheme = "icon-theme"_L1;

/// With one picture, that of folders.
void makeTheme(const QString& path, const QColor& color)
{
    QDir().mkpath(path + u"/32"_s);
    QFile index(path + u"/index.theme"_s);
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=x\nDirectories=32\n[32]\nSize=32\n");
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY(image.save(path + u"/32/folder.png"_s));
}

QColor colorOfFolders(IconSource& icons)
{
    QImage answer;
    icons.find(QDir::rootPath(), 32, [&answer](const QImage& picture) { answer = picture; });
    return QTest::qWaitFor([&answer] { return !answer.isNull(); }) ? answer.pixelColor(16, 16)
                                                                   : QColor();
}

} // namespace

void PortalDesktopTest::initTestCase()
{
    qDBusRegisterMetaType<Settings>();
}

void PortalDesktopTest::init()
{
    m_portal = std::make_unique<FakePortal>();
}

void PortalDesktopTest::cleanup()
{
    m_portal->stop();
    m_portal.reset();
}

void PortalDesktopTest::isMotionReduced_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<bool>("isReduced");

    QTest::addRow("nothing said") << Settings{} << false;
    QTest::addRow("animations on") << Settings{{Interface, {{Animations, true}}}} << false;
    QTest::addRow("animations off") << Settings{{Interface, {{Animations, false}}}} << true;
    QTest::addRow("no preference") << Settings{{Appearance, {{ReducedMotion, 0U}}}} << false;
    QTest::addRow("less motion") << Settings{{Appearance, {{ReducedMotion, 1U}}}} << true;
    QTest::addRow("an unknown preference")
        << Settings{{Appearance, {{ReducedMotion, 7U}}}} << false;
    QTest::addRow("either is enough")
        << Settings{{Appearance, {{ReducedMotion, 1U}}}, {Interface, {{Animations, true}}}} << true;
    QTest::addRow("other settings")
        << Settings{{Appearance, {{u"contrast"_s, 1U}}}, {Interface, {{u"clock"_s, u"24h"_s}}}}
        << false;
}

void PortalDesktopTest::isMotionReduced()
{
    QFETCH(const Settings, settings);
    m_portal->settings = settings;
    QVERIFY(m_portal->start());

    const PortalDesktop desktop(connectedBus());
    QTRY_COMPARE(m_portal->questions, 1);

    QTEST(QTest::qWaitFor([&desktop] { return desktop.isMotionReduced(); }, 50), "isReduced");
}

void PortalDesktopTest::isMotionReduced_noPortal_isFalse()
{
    const PortalDesktop desktop(connectedBus());
    QTest::qWait(0);

    QVERIFY(!desktop.isMotionReduced());
}

void PortalDesktopTest::isMotionReduced_hungPortal_isFalse()
{
    m_portal->isHung = true;
    QVERIFY(m_portal->start());

    const PortalDesktop desktop(connectedBus());
    QTRY_COMPARE(m_portal->questions, 1);

    QVERIFY(!desktop.isMotionReduced());
}

void PortalDesktopTest::isMotionReduced_untilTheAnswer_isFalse()
{
    m_portal->settings[Interface][Animations] = false;
    QVERIFY(m_portal->start());

    const PortalDesktop desktop(connectedBus());

    QVERIFY(!desktop.isMotionReduced());
    QTRY_VERIFY(desktop.isMotionReduced());
}

void PortalDesktopTest::isMotionReduced_portalStartsLater_asksIt()
{
    m_portal->settings[Interface][Animations] = false;
    const PortalDesktop desktop(connectedBus());
    QTest::qWait(0);

    QVERIFY(m_portal->start());

    QTRY_VERIFY(desktop.isMotionReduced());
}

void PortalDesktopTest::isMotionReduced_followsChanges()
{
    QVERIFY(m_portal->start());
    const PortalDesktop desktop(connectedBus());
    QSignalSpy changes(&desktop, &Desktop::isMotionReducedChanged);
    QTRY_COMPARE(m_portal->questions, 1);

    m_portal->change(Interface, Animations, false);
    QTRY_VERIFY(desktop.isMotionReduced());
    m_portal->change(Interface, Animations, true);
    QTRY_VERIFY(!desktop.isMotionReduced());

    QCOMPARE(changes.size(), 2);
}

void PortalDesktopTest::isMotionReducedChanged_onlyWhenItChanges()
{
    QVERIFY(m_portal->start());
    const PortalDesktop desktop(connectedBus());
    QSignalSpy changes(&desktop, &Desktop::isMotionReducedChanged);
    QTRY_COMPARE(m_portal->questions, 1);

    m_portal->change(Interface, Animations, false);
    m_portal->change(Appearance, ReducedMotion, 1U);
    m_portal->change(Interface, Animations, true);
    m_portal->change(Appearance, ReducedMotion, 0U);

    QTRY_COMPARE(changes.size(), 2);
    QVERIFY(!desktop.isMotionReduced());
}

void PortalDesktopTest::isMotionReduced_noBus_isFalse()
{
    const PortalDesktop desktop{std::make_shared<SessionBus>(QString())};

    QVERIFY(!desktop.isMotionReduced());
}

void PortalDesktopTest::iconTheme_isTheUsersChoice()
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    makeTheme(home.filePath(u"icons/Green"_s), Qt::green);
    makeTheme(home.filePath(u"icons/Blue"_s), Qt::blue);
    m_portal->settings[Interface][IconTheme] = u"Green"_s;
    QVERIFY(m_portal->start());
    const auto platform = makePlatformWithoutDisplay();
    const QSignalSpy changed(platform.icons.get(), &IconSource::changed);

    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(colorOfFolders(*platform.icons), QColor(Qt::green));
    m_portal->change(Interface, IconTheme, u"Blue"_s);
    QTRY_COMPARE(changed.size(), 2);

    QCOMPARE(colorOfFolders(*platform.icons), QColor(Qt::blue));
}

void PortalDesktopTest::fontFamily_withoutADesktop_isInter()
{
    QVERIFY2(QFontDatabase::hasFamily(u"Inter"_s), "Inter is not installed");
    const PortalDesktop desktop(connectedBus());

    QCOMPARE(desktop.fontFamily(), u"Inter"_s);
}

QTEST_MAIN(PortalDesktopTest)
#include "tst_portaldesktop.moc"
