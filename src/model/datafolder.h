#pragma once

#include <QString>

namespace quib {

/// Where this program keeps its files: the value of QUIB_DATA_DIR exactly as it stands when it is
/// set, else a folder in the user's data home. Made with its parents each time it is asked for.
QString dataFolder();

/// The workspace's file in that folder.
QString dataFile();

} // namespace quib
