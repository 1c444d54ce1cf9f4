#include "platform/linux/launch/launchinstalled.h"

#include "platform/linux/base/keyfile.h"
#include "platform/linux/base/startdetached.h"
#include "platform/linux/launch/giolaunch.h"

#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// An entry in the user's own folder may hide those of the system.
bool isOfUse(const QString& path)
{
    const KeyFile file(path);
    const QString group(QLatin1String(G_KEY_FILE_DESKTOP_GROUP));
    const auto program = file.text(group, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC);
    const bool isHidden = file.text(group, G_KEY_FILE_DESKTOP_KEY_HIDDEN) == "true"_L1;
    return !isHidden && (program.isEmpty() || !QStandardPaths::findExecutable(program).isEmpty());
}

/// By the files themselves: GIO would look under a lock that a dead disk then holds.
QString firstInstalled(const QStringList& entries)
{
    for (const auto& entry : entries) {
        auto path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
        if (!path.isEmpty() && isOfUse(path)) {
            return path;
        }
    }
    return {};
}

} // namespace

void launchFirstInstalled(const QStringList& entries)
{
    startDetached([entries] {
        if (const auto path = firstInstalled(entries); !path.isEmpty()) {
            launchPath(QFile::encodeName(path));
        }
    });
}

} // namespace quib
