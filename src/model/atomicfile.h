#pragma once

#include <QByteArray>
#include <QString>

namespace quib {

/// Replaces a file whole and durably, or leaves the old one as it is and says false. A reader
/// sees the old bytes or the new ones, never a part. A symbolic link is written through.
bool replaceFile(const QString& path, const QByteArray& bytes);

/// Removes what a replaceFile() that was killed half-way has left beside the file.
void removeLeftovers(const QString& path);

} // namespace quib
