#include "platform/linux/session/quitsignals.h"

#include <QCoreApplication>
#include <QThread>

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace quib {

namespace {

volatile std::sig_atomic_t pipeEnd = -1; // Where the handler writes; -1 while nobody reads.
bool isQuitOurs = false; // False again once Qt has announced the quit.

extern "C" void passOn(int /*signal*/)
{
    const auto before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(pipeEnd, &byte, 1);
    errno = before;
}

/// When the X server dies Qt calls exit(), in the middle of its event loop and without a word to
/// anyone. The objects of main() still live then, and can save what they hold.
void announceQuit()
{
    if (isQuitOurs && qApp != nullptr && QThread::currentThread() == qApp->thread()) {
        isQuitOurs = false;
        QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection);
    }
}

std::array<int, 2> makePipe()
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return {-1, -1};
    }
    return ends;
}

} // namespace

QuitSignals::QuitSignals()
    : m_pipe(makePipe())
    , m_notifier(m_pipe[0], QSocketNotifier::Read)
{
    // Not quit(), which a window can refuse.
    connect(&m_notifier, &QSocketNotifier::activated, qApp, [] { QCoreApplication::exit(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [] { isQuitOurs = false; });
    [[maybe_unused]] static const int registered = std::atexit(announceQuit);
    isQuitOurs = true;

    pipeEnd = m_pipe[1];
    struct sigaction action { };
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < Signals.size(); ++i) {
        sigaction(Signals.at(i), &action, &m_before.at(i));
    }
}

QuitSignals::~QuitSignals()
{
    for (std::size_t i = 0; i < Signals.size(); ++i) {
        sigaction(Signals.at(i), &m_before.at(i), nullptr);
    }
    isQuitOurs = false;
    pipeEnd = -1;
    m_notifier.setEnabled(false);
    for (const auto end : m_pipe) {
        close(end);
    }
}

} // namespace quib
