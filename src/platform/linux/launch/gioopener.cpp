#include "platform/linux/launch/gioopener.h"

#include "model/texts/nativepath.h"
#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"
#include "platform/linux/base/startdetached.h"
#include "platform/linux/launch/giolaunch.h"

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto FileManagerName = "org.freedesktop.FileManager1"_L1;
constexpr auto FileManagerPath = "/org/freedesktop/FileManager1"_L1;

QByteArray bytesOf(const std::filesystem::path& path)
{
    return QByteArray::fromStdString(path.native());
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

GioOpener::GioOpener(std::shared_ptr<SessionBus> bus, const Patience& patience)
    : m_bus(std::move(bus))
    , m_patience(patience)
{
    connect(m_bus.get(), &SessionBus::lost, this, forgetBus);
}

GioOpener::~GioOpener()
{
    const auto latest = std::chrono::steady_clock::now() + m_patience.atTheEnd;
    for (const auto& opening : m_underWay) {
        opening.wait_until(latest);
    }
}

void GioOpener::openPath(const std::filesystem::path& path)
{
    inBackground([path = bytesOf(path)] { launchPath(path); });
}

void GioOpener::openAddress(const QUrl& address)
{
    inBackground([address = address.toEncoded()] { launchAddress(address); });
}

void GioOpener::openWithFirst(const QString& path, const QStringList& candidates)
{
    QByteArrayList names;
    std::ranges::transform(candidates, std::back_inserter(names),
                           qOverload<const QString&>(&QFile::encodeName));
    inBackground([path = QFile::encodeName(path), names] { launchWithFirst(path, names); });
}

void GioOpener::openInTextEditor(const std::filesystem::path& path)
{
    inBackground([path = bytesOf(path)] { launchInTextEditor(path); });
}

void GioOpener::reveal(const QString& path)
{
    if (!m_bus->isConnected()) {
        openFolderOf(path);
        return;
    }
    QElapsedTimer asked;
    asked.start();
    whenAnswered(m_bus->connection().asyncCall(showItems(path)), this, openingLog(),
                 "the file manager", [this, asked, path](const QDBusPendingCall& answer) {
                     if (answer.isError() && asked.elapsed() < m_patience.withFileManager.count()) {
                         openFolderOf(path);
                     }
                 });
}

void GioOpener::openFolderOf(const QString& path)
{
    openPath(nativePath(QFileInfo(path).path()));
}

void GioOpener::inBackground(std::function<void()> work)
{
    std::erase_if(m_underWay, [](const auto& opening) {
        return opening.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
    auto opening = startDetached(std::move(work));
    if (opening.valid()) {
        m_underWay.push_back(std::move(opening));
    }
}

} // namespace quib
