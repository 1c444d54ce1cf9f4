#pragma once

#include <QQuickItem>

#include <qqmlintegration.h>

namespace quib {

/// What views that nobody will see for a while can do without.
class Unseen : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Frees the pictures of all raster items in a hidden view. They are made anew when they come
    /// into sight.
    Q_INVOKABLE static void letGo(QQuickItem* view);
};

} // namespace quib
