#pragma once

#include <QByteArray>

namespace quib {

/// Whether a drawing can be given to Qt to draw: it reads no other file, comes to an end soon, and
/// is not nested too deeply.
bool isHarmlessSvg(const QByteArray& svg);

} // namespace quib
