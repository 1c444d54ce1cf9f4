#pragma once

#include <QString>

namespace quib {

/// At most so many units of a text, and never half of a surrogate pair.
QString beginningOf(const QString& text, qsizetype mostUnits);

} // namespace quib
