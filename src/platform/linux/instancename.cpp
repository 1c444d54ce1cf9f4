#include "platform/linux/instancename.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto ApplicationName = "org.korvel.Quib"_L1;

/// Without links and dots, also where the last folders do not exist yet.
QByteArray canonicalPath(const QString& folder)
{
    const auto absolute = QFile::encodeName(QDir::cleanPath(QDir(folder).absolutePath()));
    std::error_code error;
    const auto path = std::filesystem::weakly_canonical(absolute.toStdString(), error);
    return error ? absolute : QByteArray::fromStdString(path.string());
}

QString defaultFolder()
{
    const auto chosen = qEnvironmentVariable("XDG_DATA_HOME");
    const auto dataHome
        = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + "/.local/share"_L1;
    return dataHome + "/KorvelQuib"_L1;
}

} // namespace

QString instanceName(const QString& dataFolder)
{
    const auto isDefault = canonicalPath(dataFolder) == canonicalPath(defaultFolder());
    return isDefault ? QString(ApplicationName) : lockName(dataFolder);
}

QString lockName(const QString& dataFolder)
{
    const auto hash
        = QCryptographicHash::hash(canonicalPath(dataFolder), QCryptographicHash::Sha256);
    // No part of a bus name begins with a digit.
    return ApplicationName + ".d"_L1 + QString::fromLatin1(hash.toHex().left(16));
}

QString objectPath(const QString& busName)
{
    return u'/' + QString(busName).replace(u'.', u'/');
}

} // namespace quib
