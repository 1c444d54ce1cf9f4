#pragma once

#include <QObject>
#include <QPainterPath>
#include <QRectF>
#include <QRegion>

#include <optional>

class QWindow;

namespace quib {

/// What the shell asks of the window system for its one panel. Implemented once per platform;
/// everything on the main thread. The window is borrowed and may die first.
class PanelHost : public QObject {
    Q_OBJECT

public:
    /// Called once, before the window is shown.
    virtual void adopt(QWindow& window) = 0;
    /// In global points.
    virtual void place(const QRectF& frame) = 0;
    /// In points of the window. Clicks outside the region reach what lies beneath. While it is
    /// empty nothing here can be typed into, so the panel passes on the keyboard if it gets it.
    virtual void setInputRegion(const QRegion& region) = 0;
    /// In points of the window. Where the pointer opens the panel or keeps it open. Clicks stay
    /// with the panel there too where a window is told of the pointer only where it takes clicks.
    virtual void setHoverRect(const QRect& rect) = 0;
    /// The outline of what is drawn, in points of the window. Matters where nothing blends the
    /// window with what lies beneath; elsewhere it costs nothing.
    virtual void setVisibleShape(const QPainterPath& shape) = 0;
    virtual void orderFront() = 0;
    /// Remembers who has the keyboard and takes it. False where the panel has it or has asked for
    /// it already, or can not have it now.
    virtual bool takeKeyboard() = 0;
    /// Where the panel has it: to the window that it was last taken from. `click` is the stamp of
    /// the click that ended our use, if one did.
    virtual void giveBackKeyboard(std::optional<quint32> click) = 0;
};

} // namespace quib
