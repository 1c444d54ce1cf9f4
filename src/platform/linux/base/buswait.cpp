#include "platform/linux/base/buswait.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto ShortestPause = 100ms; // Whoever makes the socket listens a moment later.
constexpr int MostDoublings = 8;

/// Of an address like "unix:path=/run/user/1000/bus,guid=5f1c"; empty for any other.
QString socketOf(const QString& address)
{
    constexpr auto Start = "unix:path="_L1;
    const auto first = address.section(u';', 0, 0).section(u',', 0, 0);
    return first.startsWith(Start) ? QUrl::fromPercentEncoding(first.mid(Start.size()).toLatin1())
                                   : QString();
}

} // namespace

std::chrono::milliseconds pauseBeforeAttempt(int failures)
{
    return ShortestPause * (1 << std::min(failures, MostDoublings));
}

BusWait::BusWait(const QString& address)
    : m_socket(socketOf(address))
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &BusWait::isWorthATry);
}

void BusWait::again()
{
    if (!m_socket.isEmpty() && !isWatching()) {
        watchFolder();
    }
    if (!isWatching() || QFileInfo::exists(m_socket)) {
        m_pause.start(pauseBeforeAttempt(m_failures++));
    }
}

void BusWait::stop()
{
    m_pause.stop();
    m_folder.reset();
    m_failures = 0;
}

bool BusWait::isWatching() const
{
    return m_folder && !m_folder->directories().isEmpty();
}

void BusWait::watchFolder()
{
    m_lastSeen = whenSocketCame();
    m_folder = std::make_unique<QFileSystemWatcher>();
    connect(m_folder.get(), &QFileSystemWatcher::directoryChanged, this, &BusWait::lookForSocket);
    m_folder->addPath(QFileInfo(m_socket).path());
}

/// Much may come and go beside it, and the folder itself may go.
void BusWait::lookForSocket()
{
    const auto came = whenSocketCame();
    if (!isWatching() || (came.isValid() && came != m_lastSeen)) {
        m_failures = 0;
        m_pause.start(ShortestPause);
    }
    m_lastSeen = came;
}

QDateTime BusWait::whenSocketCame() const
{
    return QFileInfo(m_socket).metadataChangeTime();
}

} // namespace quib
