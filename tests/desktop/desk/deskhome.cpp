#include "desktop/desk/deskhome.h"

#include "support/sendsignal.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <grp.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uint Nobody = 65534;

/// Between fork and exec.
void become(uint user)
{
    if (::setgroups(0, nullptr) != 0 || ::setgid(user) != 0 || ::setuid(user) != 0) {
        ::_exit(127);
    }
}

/// Where everybody may run it: the folders above that of the build may be closed to all but us.
QString copyForAll(const QString& program)
{
    static const QTemporaryDir copies;
    const auto copy = copies.filePath(QFileInfo(program).fileName());
    if (!QFile::exists(copy)) {
        QFile::setPermissions(copies.path(),
                              QFile::Permissions(0x7755)); // Qt writes modes in hexadecimal.
        QFile::copy(program, copy);
    }
    return copy;
}

} // namespace

DeskHome::DeskHome(Owner owner)
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    if (owner == Owner::NotRoot && ::geteuid() == 0) {
        m_user = Nobody;
    }
    QDir(m_home.path()).mkdir(u"runtime"_s);
    QFile::setPermissions(folder(u"runtime"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    handOver(folder(u"runtime"_s));
    setVariable(u"HOME"_s, m_home.path());
    setVariable(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path="_s + folder(u"runtime/nosystem"_s));
    setVariable(u"XDG_RUNTIME_DIR"_s, folder(u"runtime"_s));
    setVariable(u"QUIB_DATA_DIR"_s, dataFolder());
    setVariable(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const auto* name : {"DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME", "XDG_CONFIG_HOME",
                             "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_CURRENT_DESKTOP"}) {
        m_environment.remove(QString::fromLatin1(name));
    }
}

DeskHome::~DeskHome()
{
    end(m_bus);
}

void DeskHome::writeData(const QByteArray& json) const
{
    handOver(writeFile(dataFolder() + u"/data.json"_s, json));
}

QJsonObject DeskHome::data() const
{
    QFile file(dataFolder() + u"/data.json"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList DeskHome::savedTasks() const
{
    QStringList titles;
    for (const auto& task : data().value("tasks"_L1).toArray()) {
        titles << task.toObject().value("title"_L1).toString();
    }
    return titles;
}

void DeskHome::setVariable(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

Program DeskHome::start(const QString& program, const QStringList& arguments) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setWorkingDirectory(m_home.path());
    if (m_user) {
        process->setChildProcessModifier([user = *m_user] { become(user); });
    }
    const auto isInTheBuild = program.startsWith(u'/') && !program.startsWith(m_home.path());
    process->start(m_user && isInTheBuild ? copyForAll(program) : program, arguments);
    process->waitForStarted();
    return process;
}

int DeskHome::runQuib(const QStringList& arguments) const
{
    const auto program = start(quib(), arguments);
    if (!program->waitForFinished(20'000)) {
        program->kill();
        program->waitForFinished();
        return -1;
    }
    return program->exitStatus() == QProcess::NormalExit ? program->exitCode() : -1;
}

QString DeskHome::quib()
{
    return QStringLiteral(QUIB_PROGRAM);
}

void DeskHome::handOver(const QString& path) const
{
    if (!m_user) {
        return;
    }
    for (auto each = path; each.startsWith(m_home.path()); each = QFileInfo(each).path()) {
        if (::chown(QFile::encodeName(each).constData(), *m_user, *m_user) != 0) {
            qFatal("%s can't be given away", qPrintable(each));
        }
    }
}

void DeskHome::end(const Program& program)
{
    if (!program || program->state() == QProcess::NotRunning) {
        return;
    }
    sendSignal(program->processId(), SIGCONT);
    program->terminate();
    if (!program->waitForFinished(5000)) {
        program->kill();
        program->waitForFinished();
    }
}

void DeskHome::killNow(Program& program)
{
    program->kill();
    program->waitForFinished();
    program.reset();
}

void DeskHome::startBus()
{
    const auto address = u"unix:path="_s + folder(u"runtime/session"_s);
    m_bus = start(u"dbus-daemon"_s,
                  {u"--session"_s, u"--nofork"_s, u"--print-address"_s, u"--address="_s + address});
    m_bus->waitForReadyRead(10'000);
    setVariable(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
}

void DeskHome::hangBus() const
{
    sendSignal(m_bus->processId(), SIGSTOP);
}

void DeskHome::resumeBus() const
{
    sendSignal(m_bus->processId(), SIGCONT);
}

void DeskHome::killBus()
{
    killNow(m_bus);
}

bool DeskHome::isOnBus(const QString& beginning) const
{
    const auto tool
        = start(u"dbus-send"_s,
                {u"--session"_s, u"--print-reply=literal"_s, u"--dest=org.freedesktop.DBus"_s,
                 u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus.ListNames"_s});
    tool->waitForFinished();
    return tool->readAllStandardOutput().contains(' ' + beginning.toLatin1());
}

bool waitFor(const char* what, const std::function<bool()>& isSo)
{
    const bool came = QTest::qWaitFor(isSo, 10'000);
    if (!came) {
        qWarning("waited in vain for %s", what);
    }
    return came;
}

qsizetype Output::count(const QByteArray& word)
{
    m_program.waitForReadyRead(10);
    m_text += m_program.readAllStandardOutput();
    return m_text.count(word);
}

void Output::forget()
{
    count({});
    m_text.clear();
}
