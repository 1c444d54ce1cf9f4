#include "platform/linux/gioopener.h"

#include "platform/linux/giolaunch.h"
#include "platform/linux/sessionbus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <functional>
#include <thread>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto FileManagerName = "org.freedesktop.FileManager1"_L1;
constexpr auto FileManagerPath = "/org/freedesktop/FileManager1"_L1;

/// On a thread that nobody waits for: what hangs on a dead disk holds up neither the next opening
/// nor the end of the program.
void inBackground(std::function<void()> work)
{
    std::thread(std::move(work)).detach();
}

QDBusMessage showItems(const QString& path)
{
    auto message = QDBusMessage::createMethodCall(FileManagerName, FileManagerPath, FileManagerName,
                                                  u"ShowItems"_s);
    const auto address = QUrl::fromLocalFile(path).toEncoded();
    message << QStringList{QString::fromLatin1(address)} << QString();
    return message;
}

} // namespace

GioOpener::GioOpener(std::chrono::milliseconds patience)
    : m_patience(patience)
{
    if (!hasSessionBus()) {
        // Where it finds none GIO would start a stray bus, that no other program is on.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
}

void GioOpener::openPath(const QString& path)
{
    inBackground([path = QFile::encodeName(path)] { launchPath(path); });
}

void GioOpener::openAddress(const QUrl& address)
{
    inBackground([address = address.toEncoded()] { launchAddress(address); });
}

void GioOpener::openWith(const QString& path, const QString& application)
{
    inBackground([path = QFile::encodeName(path), application = QFile::encodeName(application)] {
        launchWith(path, application);
    });
}

void GioOpener::openInTextEditor(const QString& path)
{
    inBackground([path = QFile::encodeName(path)] { launchInTextEditor(path); });
}

void GioOpener::reveal(const QString& path)
{
    const auto bus = sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(path);
        return;
    }
    QElapsedTimer asked;
    asked.start();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(showItems(path)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, asked, path] {
        watcher->deleteLater();
        if (watcher->isError() && asked.elapsed() < m_patience.count()) {
            openFolderOf(path);
        }
    });
}

void GioOpener::openFolderOf(const QString& path)
{
    openPath(QFileInfo(path).path());
}

} // namespace quib
