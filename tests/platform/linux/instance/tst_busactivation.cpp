#include "model/texts/nativepath.h"
#include "platform/linux/instance/instancename.h"
#include "platform/linux/instance/start.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

const auto DesktopsName = u"org.korvel.Quib"_s;

/// As a desktop calls it by the desktop entry; whether it was answered.
bool call(const QString& method, const QStringList& arguments)
{
    const QStringList way{u"call"_s,          u"--session"_s,
                          u"--dest"_s,        DesktopsName,
                          u"--object-path"_s, u"/org/korvel/Quib"_s,
                          u"--method"_s,      u"org.freedesktop.Application."_s + method};
    return QProcess::execute(u"gdbus"_s, way + arguments) == 0;
}

} // namespace

class BusActivationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void call_activatesAsDesktopsDo();
    void startedByBus_answersToTheDesktopsName();
    void bus_startsASecond_theFirstAnswersToTheDesktopsName();
    void usersOwnFolder_hasTheDesktopsNameFromThenOn();

private:
    static QProcessEnvironment startedByBus(QProcessEnvironment environment);
    QString folder(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
};

void BusActivationTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(u"XDG_RUNTIME_DIR"_s, m_folder->path());
    m_environment.insert(u"XDG_DATA_HOME"_s, folder(u"data"_s));
}

void BusActivationTest::call_activatesAsDesktopsDo()
{
    Start first(folder(u"data/KorvelQuib"_s), m_environment);

    QTRY_VERIFY(isOnBus(DesktopsName));
    QVERIFY(call(u"Activate"_s, {u"{}"_s}));
    QTRY_COMPARE(first.activations(), 1);
    QVERIFY(call(u"Open"_s, {u"['file:///tmp']"_s, u"{}"_s}));
    QTRY_COMPARE(first.activations(), 2);
    QVERIFY(call(u"ActivateAction"_s, {u"open"_s, u"[]"_s, u"{}"_s}));
    QTRY_COMPARE(first.activations(), 3);
    QVERIFY(call(u"ActivateAction"_s, {u"Pin"_s, u"[]"_s, u"{}"_s}));
    QTRY_COMPARE(first.count("pin asked"), 1);
    QCOMPARE(first.activations(), 3);
}

QProcessEnvironment BusActivationTest::startedByBus(QProcessEnvironment environment)
{
    environment.insert(u"DBUS_STARTER_BUS_TYPE"_s, u"session"_s);
    return environment;
}

void BusActivationTest::startedByBus_answersToTheDesktopsName()
{
    const Start first(folder(u"work"_s), startedByBus(m_environment));

    QTRY_VERIFY(isOnBus(lockName(nativePath(folder(u"work"_s)))));
    QTRY_VERIFY(isOnBus(DesktopsName));
}

/// Or whoever called would wait in vain: the second one leaves.
void BusActivationTest::bus_startsASecond_theFirstAnswersToTheDesktopsName()
{
    Start first(folder(u"work"_s), m_environment);
    QTRY_VERIFY(isOnBus(lockName(nativePath(folder(u"work"_s)))));
    QVERIFY(!isOnBus(DesktopsName));

    const Start second(folder(u"work"_s), startedByBus(m_environment));

    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_VERIFY(isOnBus(DesktopsName));
    QVERIFY(call(u"ActivateAction"_s, {u"Pin"_s, u"[]"_s, u"{}"_s}));
    QTRY_COMPARE(first.count("pin asked"), 1);
    QCOMPARE(first.activations(), 0);
}

void BusActivationTest::usersOwnFolder_hasTheDesktopsNameFromThenOn()
{
    Start other(folder(u"work"_s), startedByBus(m_environment));
    QTRY_VERIFY(isOnBus(DesktopsName));

    Start own(folder(u"data/KorvelQuib"_s), m_environment);

    const auto isOwnersTurn
        = [&] { return call(u"Activate"_s, {u"{}"_s}) && own.activations() > 0; };
    QTRY_VERIFY(isOwnersTurn());
    QCOMPARE(own.count("superseded"), 0);
}

QTEST_GUILESS_MAIN(BusActivationTest)
#include "tst_busactivation.moc"
