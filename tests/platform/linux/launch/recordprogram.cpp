#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>

#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QJsonObject environment()
{
    QJsonObject object;
    const auto variables = QProcessEnvironment::systemEnvironment();
    for (const auto& name : variables.keys()) {
        object.insert(name, variables.value(name));
    }
    return object;
}

bool areSignalsAsExpected()
{
    sigset_t blocked{};
    sigprocmask(SIG_SETMASK, nullptr, &blocked);
    struct sigaction pipe { };
    sigaction(SIGPIPE, nullptr, &pipe);
    return sigisemptyset(&blocked) == 1 && pipe.sa_handler == SIG_DFL;
}

} // namespace

/// An application: writes down how it was started into the folder $QUIB_RECORDS. With $QUIB_STAYS
/// set it then runs until it is killed.
int main(int argc, char* argv[])
{
    QJsonArray arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromUtf8(argv[i]);
    }
    const QJsonObject record{{u"arguments"_s, arguments},
                             {u"environment"_s, environment()},
                             {u"pid"_s, int(getpid())},
                             {u"session"_s, int(getsid(0))},
                             {u"signalsAreAsExpected"_s, areSignalsAsExpected()}};
    const auto path = qEnvironmentVariable("QUIB_RECORDS") + u'/' + QString::number(getpid());
    QFile file(path + u".part"_s);
    if (!file.open(QIODevice::WriteOnly)) {
        return 1;
    }
    file.write(QJsonDocument(record).toJson());
    file.close();
    file.rename(path + u".json"_s);
    if (qEnvironmentVariableIsSet("QUIB_STAYS")) {
        pause();
    }
    return 0;
}
