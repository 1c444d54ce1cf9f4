#include "model/file/datafolder.h"

#include "model/file/privatefolder.h"
#include "model/texts/nativepath.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Override = "QUIB_DATA_DIR";

std::filesystem::path folderPath()
{
    if (!qEnvironmentVariableIsSet(Override)) {
        const auto home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        return nativePath(home + u"/KorvelQuib"_s);
    }
    const auto path = qgetenv(Override);
    return path.isEmpty() ? "." : path.toStdString();
}

} // namespace

std::filesystem::path dataFolder()
{
    auto path = folderPath();
    makePrivateFolder(path);
    return path;
}

std::filesystem::path dataFile()
{
    return dataFolder() / "data.json";
}

} // namespace quib
