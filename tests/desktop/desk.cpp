#include "desk.h"

#include "deskconnection.h"
#include "support/writefile.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

Desk::Desk()
    : Desk(Options{})
{
}

Desk::Desk(Options options)
    : m_options(options)
    , m_environment(QProcessEnvironment::systemEnvironment())
{
    QDir(m_home.path()).mkdir(u"runtime"_s);
    QFile::setPermissions(folder(u"runtime"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    setVariable(u"HOME"_s, m_home.path());
    setVariable(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path="_s + folder(u"runtime/nosystem"_s));
    setVariable(u"XDG_RUNTIME_DIR"_s, folder(u"runtime"_s));
    setVariable(u"QUIB_DATA_DIR"_s, dataFolder());
    setVariable(u"QT_SCALE_FACTOR"_s, QString::number(options.scale));
    setVariable(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const auto* name : {"DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME", "XDG_CONFIG_HOME",
                             "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_CURRENT_DESKTOP"}) {
        m_environment.remove(QString::fromLatin1(name));
    }
    startServer();
    if (options.sessionBus) {
        startBus();
    }
    startWindowManager();
    if (options.compositor) {
        startCompositor();
    }
    moveTo(FarAway);
}

void Desk::writeData(const QByteArray& json) const
{
    writeFile(dataFolder() + u"/data.json"_s, json);
}

QJsonObject Desk::data() const
{
    QFile file(dataFolder() + u"/data.json"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList Desk::savedTasks() const
{
    QStringList titles;
    for (const auto& task : data().value("tasks"_L1).toArray()) {
        titles << task.toObject().value("title"_L1).toString();
    }
    return titles;
}

void Desk::setVariable(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

Program Desk::start(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setWorkingDirectory(m_home.path());
    process->start(program, arguments);
    process->waitForStarted();
    return process;
}

Program Desk::startQuib(QStringList command, const QStringList& arguments)
{
    command << quib() << arguments;
    const auto first = command.takeFirst();
    auto program = start(first, command);
    waitFor("the panel", [this] {
        return isShown(u"Korvel Quib"_s) && pixel({800, 12}) == QColor(Qt::black);
    });
    return program;
}

int Desk::runQuib(const QStringList& arguments)
{
    const auto program = start(quib(), arguments);
    if (!program->waitForFinished(20'000)) {
        program->kill();
        program->waitForFinished();
        return -1;
    }
    return program->exitStatus() == QProcess::NormalExit ? program->exitCode() : -1;
}

Program Desk::startListener()
{
    auto listener = start(
        u"xev"_s,
        {u"-geometry"_s, u"1600x900+0+0"_s, u"-event"_s, u"button"_s, u"-event"_s, u"keyboard"_s});
    waitFor("the listener", [this] { return isShown(u"Event Tester"_s); });
    click(FarAway); // Gives it the keyboard.
    waitFor("the listener's first click", [&] {
        listener->waitForReadyRead(50);
        return listener->peek(1 << 20).contains("ButtonRelease");
    });
    return listener;
}

QString Desk::quib()
{
    return QStringLiteral(QUIB_PROGRAM);
}

QString Desk::dragSource()
{
    return QStringLiteral(DRAG_SOURCE);
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
