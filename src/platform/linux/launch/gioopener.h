#pragma once

#include "integrations/opening/opener.h"
#include "platform/linux/base/sessionbus.h"

#include <chrono>
#include <functional>
#include <future>
#include <utility>
#include <vector>

namespace quib {

/// Opens through GIO, and reveals through the file manager on the session bus.
class GioOpener final : public QObject, public Opener {
public:
    struct Patience {
        /// A file manager that refuses later than this, or never answers, has most likely taken the
        /// request: to open the folder as well would show it twice, or when nobody cares any more.
        std::chrono::milliseconds withFileManager = std::chrono::seconds(5);
        /// What was asked for just before the end is still opened, unless it hangs.
        std::chrono::milliseconds atTheEnd = std::chrono::milliseconds(200);
    };

    GioOpener(std::shared_ptr<SessionBus> bus, const Patience& patience);
    explicit GioOpener(std::shared_ptr<SessionBus> bus)
        : GioOpener(std::move(bus), Patience())
    {
    }
    ~GioOpener() override;
    GioOpener(const GioOpener&) = delete;
    GioOpener& operator=(const GioOpener&) = delete;

    void openPath(const std::filesystem::path& path) override;
    void openAddress(const QUrl& address) override;
    void openWithFirst(const QString& path, const QStringList& candidates) override;
    void openInTextEditor(const std::filesystem::path& path) override;
    void reveal(const QString& path) override;

private:
    void openFolderOf(const QString& path);
    /// On a thread of its own: what hangs on a dead disk does not hold up the next opening.
    void inBackground(std::function<void()> work);

    std::shared_ptr<SessionBus> m_bus;
    Patience m_patience;
    std::vector<std::future<void>> m_underWay;
};

} // namespace quib
