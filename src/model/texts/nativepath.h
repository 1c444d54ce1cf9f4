#pragma once

#include <QFile>
#include <QString>

#include <filesystem>

namespace quib {

/// A path with the bytes that the system knows it by, which need not be text.
inline std::filesystem::path nativePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace quib
