#include "model/texts/nativepath.h"
#include "platform/linux/base/connectedbus.h"
#include "platform/linux/launch/gioopener.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "platform/linux/session/autostartentry.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QTextStream>

#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// What there is to say to it.
QString obey(GioOpener& opener, const QStringList& line)
{
    const auto command = line.value(0);
    if (command == u"openPath"_s) {
        opener.openPath(nativePath(line.value(1)));
    } else if (command == u"openAddress"_s) {
        opener.openAddress(QUrl(line.value(1)));
    } else if (command == u"openWithFirst"_s) {
        opener.openWithFirst(line.value(1), line.mid(2));
    } else if (command == u"openInTextEditor"_s) {
        opener.openInTextEditor(nativePath(line.value(1)));
    } else if (command == u"reveal"_s) {
        opener.reveal(line.value(1));
    } else if (command == u"startsAtLogin"_s) {
        return AutostartEntry().isEnabled() ? u"yes"_s : u"no"_s;
    } else if (command == u"launchSpotify"_s) {
        MprisPlayerLink(connectedBus()).launchSpotify();
    } else if (command == u"quit"_s) {
        QCoreApplication::quit();
    }
    return u"done"_s;
}

QStringList textsOf(const QByteArray& line)
{
    QStringList texts;
    const auto array = QJsonDocument::fromJson(line).array();
    for (const auto& value : array) {
        texts << value.toString();
    }
    return texts;
}

GioOpener::Patience patience()
{
    GioOpener::Patience patience;
    if (qEnvironmentVariableIsSet("QUIB_IMPATIENT")) {
        patience.withFileManager = std::chrono::milliseconds(0);
    }
    if (qEnvironmentVariableIsSet("QUIB_PATIENT_AT_THE_END")) {
        patience.atTheEnd = std::chrono::seconds(10);
    }
    return patience;
}

void blockASignal()
{
    sigset_t set{};
    sigemptyset(&set);
    sigaddset(&set, SIGUSR1);
    sigprocmask(SIG_BLOCK, &set, nullptr);
}

} // namespace

/// Does what the lines on its input ask for, each a JSON array, and answers each, mostly with
/// "done", once its event loop is free again.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb"); // As the program does for itself.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    signal(SIGPIPE, SIG_IGN); // As the library of the bus does.
    blockASignal();
    GioOpener opener(connectedBus(), patience());
    QTextStream out(stdout);
    QFile in;
    if (!in.open(STDIN_FILENO, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return 1;
    }
    QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &opener, [&] {
        const auto line = in.readLine();
        if (line.isEmpty()) {
            QCoreApplication::exit(2);
        }
        const auto answer = obey(opener, textsOf(line));
        QMetaObject::invokeMethod(
            &opener, [&out, answer] { out << answer << Qt::endl; }, Qt::QueuedConnection);
    });
    return QCoreApplication::exec();
}
