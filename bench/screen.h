#pragma once

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

using Instant = std::chrono::steady_clock::time_point;

struct Point {
    int x = 0;
    int y = 0;
};

/// What was drawn at about one time.
struct Redraw {
    std::chrono::milliseconds time{0}; ///< The server's.
    int pixels = 0;
    int shapes = 0; ///< How often windows were told to be drawn in another shape.
};

/// An X screen that is looked at and acted on as a user would. Looking costs the server nothing
/// while nothing is drawn.
class Screen {
public:
    using Picture = std::vector<uint8_t>;

    Screen();

    Picture picture(Point corner, int width, int height) const;
    uint32_t pixel(Point point) const;
    /// When the condition came to hold. It is looked at now and after each drawing; throws when it
    /// does not come true in half a minute.
    Instant waitUntil(const char* what, const std::function<bool()>& isSo);
    /// What is drawn from now on until the time is over. Shapes are counted of windows that exist
    /// now.
    std::vector<Redraw> redrawsWithin(std::chrono::milliseconds time);

    void moveTo(Point point);
    void click(Point point);
    void pressKey(uint32_t symbol);
    /// Gives the keyboard to the window under the pointer, unless one has it.
    void lendKeyboard();

private:
    using Drawing = xcb_damage_notify_event_t;

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_damage_damage_t watchDrawing(xcb_damage_report_level_t level);
    void watchShapes();
    std::optional<Drawing> nextDrawing(Instant deadline);
    void fake(uint8_t type, uint8_t detail, Point point = {});
    uint8_t keyFor(uint32_t symbol) const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = 0;
    uint8_t m_damageEvent = 0;
    uint8_t m_shapeEvent = 0;
    int m_shapes = 0; ///< Told of since the latest drawing.
};
