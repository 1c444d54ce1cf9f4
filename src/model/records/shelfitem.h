#pragma once

#include <QString>
#include <QUuid>

namespace quib {

/// A file or folder parked on the shelf. Only its place is kept; it may be gone.
struct ShelfItem {
    QUuid id;
    QString path; ///< Absolute.

    bool operator==(const ShelfItem&) const = default;
};

} // namespace quib
