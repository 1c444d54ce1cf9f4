#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>

#include <cstdint>
#include <memory>

/// Pointer and keys of a compositor, which learns of them in this order.
class Hand {
public:
    Hand() = default;
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    virtual ~Hand() = default;

    virtual void moveTo(QPoint point) = 0;
    virtual void button(uint32_t code, bool isDown) = 0;
    virtual void key(uint32_t code, bool isDown) = 0;
    /// Other screens, and all of them together cover this.
    virtual void setScreens(QSize all) = 0;
    /// Returns once the compositor has read everything before.
    virtual bool isHeard() = 0;
};

/// Why there is none, in words.
struct NoHand {
    QByteArray reason;
};

/// Of the compositor at WAYLAND_DISPLAY. Throws NoHand.
std::unique_ptr<Hand> makeWaylandHand(QSize screens);
/// Of the mutter on the session bus. Throws NoHand.
std::unique_ptr<Hand> makeMutterHand();
