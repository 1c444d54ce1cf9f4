#include "platform/linux/iconthemechoice.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::IconThemeChoice;

using Settings = QMap<QString, QVariantMap>;

/// The desktop's portal, on a connection of its own.
class ThemePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Settings settings;

    void start()
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportScriptableContents);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    void stop() { m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s); }

public Q_SLOTS:
    Q_SCRIPTABLE Settings ReadAll(const QStringList& /*namespaces*/) { return settings; }

Q_SIGNALS:
    // NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): moc has its own names
    Q_SCRIPTABLE void SettingChanged(const QString& space, const QString& key,
                                     const QDBusVariant& value);

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
};

class IconThemeChoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    static void initTestCase() { qDBusRegisterMetaType<Settings>(); }
    void init() { m_portal = std::make_unique<ThemePortal>(); }
    void cleanup();
    void theme_isThatOfThePortal();
    void portalThatComesLate_isAsked();
    void noPortal_tellsNothing();
    void otherSettings_tellNothing();

private:
    std::unique_ptr<ThemePortal> m_portal;
    const QString m_space = u"org.gnome.desktop.interface"_s;
};

void IconThemeChoiceTest::cleanup()
{
    m_portal->stop();
    m_portal.reset();
}

void IconThemeChoiceTest::theme_isThatOfThePortal()
{
    auto& portal = *m_portal;
    portal.settings[m_space][u"icon-theme"_s] = u"Papirus"_s;
    portal.start();
    IconThemeChoice choice(QDBusConnection::sessionBus());
    QSignalSpy told(&choice, &IconThemeChoice::told);

    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.takeFirst().at(0).toString(), u"Papirus"_s);
    Q_EMIT portal.SettingChanged(m_space, u"icon-theme"_s, QDBusVariant(u"breeze"_s));

    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.takeFirst().at(0).toString(), u"breeze"_s);
}

void IconThemeChoiceTest::portalThatComesLate_isAsked()
{
    IconThemeChoice choice(QDBusConnection::sessionBus());
    QSignalSpy told(&choice, &IconThemeChoice::told);
    auto& portal = *m_portal;
    portal.settings[m_space][u"icon-theme"_s] = u"Papirus"_s;

    portal.start();

    QTRY_COMPARE(told.size(), 1);
}

void IconThemeChoiceTest::noPortal_tellsNothing()
{
    IconThemeChoice choice(QDBusConnection(u"nowhere"_s));
    IconThemeChoice other(QDBusConnection::sessionBus());
    QSignalSpy told(&other, &IconThemeChoice::told);

    // The bus answers in order: once it has, the portal would have been heard.
    QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus"_s, u"GetId"_s));
    QCoreApplication::processEvents();

    QVERIFY(told.isEmpty());
}

void IconThemeChoiceTest::otherSettings_tellNothing()
{
    auto& portal = *m_portal;
    portal.settings[m_space][u"cursor-theme"_s] = u"Papirus"_s;
    portal.start();
    IconThemeChoice choice(QDBusConnection::sessionBus());
    QSignalSpy told(&choice, &IconThemeChoice::told);

    Q_EMIT portal.SettingChanged(m_space, u"cursor-theme"_s, QDBusVariant(u"x"_s));
    Q_EMIT portal.SettingChanged(m_space, u"icon-theme"_s, QDBusVariant(u"last"_s));

    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.front().at(0).toString(), u"last"_s);
}

QTEST_GUILESS_MAIN(IconThemeChoiceTest)
#include "tst_iconthemechoice.moc"
