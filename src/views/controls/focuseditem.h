#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include <qqmlintegration.h>

namespace quib {

/// The item that keys reach in a window, or would reach if the window had the keyboard.
class FocusedItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Null where there is none.
    Q_INVOKABLE static QQuickItem* in(QQuickWindow* window)
    {
        auto* item = window->contentItem()->scopedFocusItem();
        while (item && item->isFocusScope() && item->scopedFocusItem()) {
            item = item->scopedFocusItem();
        }
        return item;
    }
};

} // namespace quib
