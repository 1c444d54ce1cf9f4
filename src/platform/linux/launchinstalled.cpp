#include "platform/linux/launchinstalled.h"

#include "platform/linux/giolaunch.h"

#include <QFile>
#include <QStandardPaths>

#include <thread>

namespace quib {

namespace {

/// By the files themselves: GIO would look under a lock that a dead disk then holds.
QString firstInstalled(const QStringList& entries)
{
    for (const auto& entry : entries) {
        auto path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
        if (!path.isEmpty()) {
            return path;
        }
    }
    return {};
}

} // namespace

void launchFirstInstalled(const QStringList& entries)
{
    std::thread([entries] { launchPath(QFile::encodeName(firstInstalled(entries))); }).detach();
}

} // namespace quib
