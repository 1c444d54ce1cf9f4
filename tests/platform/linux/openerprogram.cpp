#include "platform/linux/gioopener.h"
#include "platform/linux/mprisplayerlink.h"

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

void obey(GioOpener& opener, const QStringList& line)
{
    const auto command = line.value(0);
    if (command == u"openPath"_s) {
        opener.openPath(line.value(1));
    } else if (command == u"openAddress"_s) {
        opener.openAddress(QUrl(line.value(1)));
    } else if (command == u"openWith"_s) {
        opener.openWith(line.value(1), line.value(2));
    } else if (command == u"openInTextEditor"_s) {
        opener.openInTextEditor(line.value(1));
    } else if (command == u"reveal"_s) {
        opener.reveal(line.value(1));
    } else if (command == u"launchSpotify"_s) {
        MprisPlayerLink().launchSpotify();
    } else if (command == u"quit"_s) {
        QCoreApplication::quit();
    }
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

std::chrono::milliseconds patience()
{
    return qEnvironmentVariableIsSet("QUIB_IMPATIENT") ? std::chrono::milliseconds(0)
                                                       : GioOpener::Patience;
}

void blockASignal()
{
    sigset_t set{};
    sigemptyset(&set);
    sigaddset(&set, SIGUSR1);
    sigprocmask(SIG_BLOCK, &set, nullptr);
}

} // namespace

/// Opens what the lines on its input ask for, each a JSON array, and says "done" after each once
/// its event loop is free again.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb"); // As the program does for itself.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    signal(SIGPIPE, SIG_IGN); // As the library of the bus does.
    blockASignal();
    GioOpener opener(patience());
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
        obey(opener, textsOf(line));
        QMetaObject::invokeMethod(
            &opener, [&out] { out << "done" << Qt::endl; }, Qt::QueuedConnection);
    });
    return QCoreApplication::exec();
}
