#pragma once

#include "app/shell/menuitem.h"

#include <QImage>
#include <QList>
#include <QObject>

namespace quib {

/// What an item in the desktop's status bar shows.
struct StatusIcon {
    QList<QImage> images; ///< One shape at growing sizes, opaque where it is drawn.
    QString accessibleName;
};

/// Our item in the desktop's status bar, with its menu. Implemented once per platform; on the main
/// thread. Nothing here waits for the desktop, which may offer no status bar, or offer one later.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// Called once, first.
    virtual void install(const StatusIcon& icon) = 0;
    /// Replaces the menu, or only brings its check marks up to date when nothing else differs.
    virtual void setMenu(const QList<MenuItem>& menu) = 0;
    /// Whether a status bar shows the item. False until the desktop has answered.
    virtual bool isShown() const = 0;

Q_SIGNALS:
    /// The menu is about to open: what `setMenu` is told meanwhile is what the user sees.
    void menuWillOpen();
    void chosen(int row);
    /// The item itself was pressed, where the desktop opens no menu for that.
    void pressed();
    void isShownChanged();
};

} // namespace quib
