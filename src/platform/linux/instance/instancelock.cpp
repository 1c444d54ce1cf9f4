#include "platform/linux/instance/instancelock.h"

#include "model/file/privatefolder.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto PatienceWithABeginner = 500ms; // It takes the lock, and listens a moment later.
constexpr auto PauseBetweenKnocks = 5ms;

/// In a folder that others can write to, only a folder of the user's own that nobody else enters.
bool isPrivate(const QByteArray& folder)
{
    struct stat facts { };
    return lstat(folder.constData(), &facts) == 0 && S_ISDIR(facts.st_mode)
        && facts.st_uid == geteuid() && (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QByteArray runtimeFolder()
{
    auto given = qgetenv("XDG_RUNTIME_DIR");
    if (given.startsWith('/') && isPrivate(given)) {
        return given;
    }
    auto own = QFile::encodeName(QDir::tempPath() + "/quib-"_L1 + QString::number(geteuid()));
    makePrivateFolder(own.toStdString());
    return isPrivate(own) ? own : QByteArray();
}

/// Absent where the path is longer than such addresses can be.
std::optional<sockaddr_un> addressOf(const QByteArray& path)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (std::size_t(path.size()) >= sizeof address.sun_path) {
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    return address;
}

const sockaddr* general(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

int openSocket()
{
    return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// Nobody is there yet, or only what a crash has left.
bool isNotListening(int error)
{
    return error == ENOENT || error == ECONNREFUSED;
}

void closeIfOpen(int descriptor)
{
    if (descriptor >= 0) {
        close(descriptor);
    }
}

} // namespace

InstanceLock::InstanceLock(const QString& name)
    : m_folder(runtimeFolder())
    , m_name(QFile::encodeName(name))
{
}

InstanceLock::~InstanceLock()
{
    m_notifier.reset();
    if (m_socket >= 0) {
        unlink(path(".socket").constData()); // Before the lock goes and the next one listens.
    }
    closeIfOpen(m_socket);
    closeIfOpen(m_lock);
}

bool InstanceLock::claim()
{
    if (m_folder.isEmpty()) {
        return true;
    }
    // The sticky bit keeps the file from being tidied away while we run.
    m_lock = open(path(".lock").constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                  S_IRUSR | S_IWUSR);
    fchmod(m_lock, S_ISVTX | S_IRUSR | S_IWUSR);
    m_isHeld = m_lock >= 0 && flock(m_lock, LOCK_EX | LOCK_NB) == 0;
    if (m_lock >= 0 && !m_isHeld) {
        return false;
    }
    listen();
    return true;
}

void InstanceLock::knock(Knock knock) const
{
    const auto address = addressOf(path(".socket"));
    const auto sender = openSocket();
    const QDeadlineTimer latest(PatienceWithABeginner);
    while (address
           && sendto(sender, &knock, sizeof knock, 0, general(*address), sizeof *address) < 0
           && isNotListening(errno) && !latest.hasExpired()) {
        std::this_thread::sleep_for(PauseBetweenKnocks);
    }
    closeIfOpen(sender);
}

void InstanceLock::listen()
{
    const auto address = addressOf(path(".socket"));
    if (!address) {
        return;
    }
    unlink(address->sun_path); // Left by a process that crashed: ours is the lock.
    m_socket = openSocket();
    if (bind(m_socket, general(*address), sizeof *address) != 0) {
        return;
    }
    chmod(address->sun_path, S_IRUSR | S_IWUSR); // A strict umask locks out the user's next start.
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &InstanceLock::readKnocks);
}

void InstanceLock::readKnocks()
{
    auto knock = Knock::Open;
    while (recv(m_socket, &knock, sizeof knock, 0) >= 0) {
        Q_EMIT knocked(knock);
    }
}

QByteArray InstanceLock::path(const char* suffix) const
{
    return m_folder + '/' + m_name + suffix;
}

} // namespace quib
