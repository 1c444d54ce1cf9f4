#pragma once

#include <QString>

#include <filesystem>

namespace quib {

/// By which the desktop's entry of the program is known.
inline constexpr QLatin1String ApplicationName("org.korvel.Quib");

/// The bus name of the program that uses the folder: the plain one for the user's own data folder,
/// one with a hash of the path for any other. However the path is spelt, a folder has one name.
QString instanceName(const std::filesystem::path& dataFolder);

/// The name of the folder's lock: by its path alone, since what is the user's own data folder
/// differs with the environment.
QString lockName(const std::filesystem::path& dataFolder);

/// Where an application of that bus name has its object.
QString objectPath(const QString& busName);

} // namespace quib
