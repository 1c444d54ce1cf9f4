#include "platform/linux/instance/instancename.h"

#include "model/texts/nativepath.h"

#include <QCryptographicHash>
#include <QDir>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// Without links and dots, also where the last folders do not exist yet.
std::filesystem::path canonicalPath(const std::filesystem::path& folder)
{
    std::error_code error;
    const auto absolute = std::filesystem::absolute(folder, error);
    const auto path = std::filesystem::weakly_canonical(absolute, error);
    const auto found = error ? absolute.lexically_normal() : path;
    return found.has_filename() ? found : found.parent_path(); // There may be a slash behind it.
}

std::filesystem::path defaultFolder()
{
    const auto chosen = qEnvironmentVariable("XDG_DATA_HOME");
    const auto dataHome
        = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + "/.local/share"_L1;
    return nativePath(dataHome + "/KorvelQuib"_L1);
}

} // namespace

QString instanceName(const std::filesystem::path& dataFolder)
{
    const auto isDefault = canonicalPath(dataFolder) == canonicalPath(defaultFolder());
    return isDefault ? QString(ApplicationName) : lockName(dataFolder);
}

QString lockName(const std::filesystem::path& dataFolder)
{
    const auto path = QByteArray::fromStdString(canonicalPath(dataFolder).native());
    const auto hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256);
    // No part of a bus name begins with a digit.
    return ApplicationName + ".d"_L1 + QString::fromLatin1(hash.toHex().left(16));
}

QString objectPath(const QString& busName)
{
    return u'/' + QString(busName).replace(u'.', u'/');
}

} // namespace quib
