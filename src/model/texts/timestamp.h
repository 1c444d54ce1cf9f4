#pragma once

#include <QString>

namespace quib {

/// What to add to the end of notes to stamp them with a moment: a line of its own.
QString timestamp(const QString& notes, const QString& moment);

} // namespace quib
