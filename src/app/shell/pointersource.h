#pragma once

#include <QObject>
#include <QPointF>

namespace quib {

/// Where the pointer is, in global points, and whether its left button is down.
struct PointerState {
    QPointF position;
    bool leftHeld = false;

    bool operator==(const PointerState&) const = default;
};

/// The pointer, also while it is over other programs. Implemented once per platform.
class PointerSource : public QObject {
    Q_OBJECT

public:
    virtual PointerState state() const = 0;
    /// True where state() has to be asked on every tick; else changed() tells when.
    virtual bool needsPolling() const = 0;
    /// Has changed() told once more, when the pointer moves or a button goes down or up next. False
    /// where nothing can tell.
    virtual bool announceNextChange() = 0;

Q_SIGNALS:
    void changed();
    /// A left press anywhere, our own window included. `time` is the desktop's stamp of it.
    void clicked(quint32 time);
};

} // namespace quib
