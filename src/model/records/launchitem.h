#pragma once

#include <QString>
#include <QUuid>

namespace quib {

/// A quick-launch button.
struct LaunchItem {
    QUuid id;
    QString name;
    QString
        target; ///< An address, with or without a scheme, or the path of an application or folder.

    bool operator==(const LaunchItem&) const = default;
};

} // namespace quib
