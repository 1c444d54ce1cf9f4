#pragma once

#include <QByteArray>

namespace quib {

/// What shortcuts.json holds until the user edits it, in UTF-8.
QByteArray starterShortcuts();

} // namespace quib
