#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace quib {

/// The picture in a file, scaled to fit the middle of a square of so many pixels. Null when the
/// file is no picture, or one that would take too long or too much memory.
QImage readIcon(const QString& path, int pixels);

/// The same of the bytes of such a file.
QImage decodeIcon(const QByteArray& bytes, int pixels);

} // namespace quib
