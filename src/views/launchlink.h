#pragma once

#include <QString>

namespace quib {

/// What a website is called: the name that was typed, else the host of its address as it was typed,
/// else the address.
QString linkName(const QString& typedName, const QString& address);

/// The full path that a target stands for, "~" being the home folder; empty for an address.
QString launchPath(const QString& target, const QString& home);

} // namespace quib
