#pragma once

#include <QString>

namespace quib {

/// What a website is called: the name that was typed, else the host of its address as it was typed,
/// else the address.
QString linkName(const QString& typedName, const QString& address);

} // namespace quib
