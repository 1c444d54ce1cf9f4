#pragma once

#include <QString>

namespace quib {

/// One line of the status menu.
struct MenuItem {
    QString title; ///< Empty for a separator.
    QString keyEquivalent; ///< A letter, pressed with the platform's command modifier; or empty.
    bool isCheckable = false;
    bool isChecked = false;

    bool isSeparator() const { return title.isEmpty(); }
    bool operator==(const MenuItem&) const = default;
};

} // namespace quib
