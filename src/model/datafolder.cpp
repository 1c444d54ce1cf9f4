#include "model/datafolder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Override = "QUIB_DATA_DIR";

QString folderPath()
{
    if (!qEnvironmentVariableIsSet(Override)) {
        const auto home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        return home + u"/KorvelQuib"_s;
    }
    const auto path = QFile::decodeName(qgetenv(Override));
    return path.isEmpty() ? u"."_s : path;
}

} // namespace

QString dataFolder()
{
    auto path = folderPath();
    QDir().mkpath(path);
    return path;
}

QString dataFile()
{
    return QDir(dataFolder()).filePath(u"data.json"_s);
}

} // namespace quib
