#include "platform/linux/x11/windowshape.h"

#include "platform/linux/x11/base/xserver.h"

#include <QCoreApplication>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <vector>

namespace quib {

namespace {

std::vector<xcb_rectangle_t> rectangles(const QRegion& region)
{
    std::vector<xcb_rectangle_t> rectangles;
    rectangles.reserve(std::size_t(region.rectCount()));
    for (const auto& rect : region) {
        rectangles.push_back({.x = int16_t(rect.x()),
                              .y = int16_t(rect.y()),
                              .width = uint16_t(rect.width()),
                              .height = uint16_t(rect.height())});
    }
    return rectangles;
}

/// The number of the request.
uint32_t shapeAs(xcb_window_t window, const QRegion& region)
{
    const auto shape = rectangles(region);
    return xcb_shape_rectangles(qtConnection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                                XCB_CLIP_ORDERING_YX_BANDED, window, 0, 0, uint32_t(shape.size()),
                                shape.data())
        .sequence;
}

/// An extension may be used once its version has been asked for.
void askForVersion(xcb_connection_t* connection)
{
    const XcbOwned<xcb_xfixes_query_version_reply_t> reply(xcb_xfixes_query_version_reply(
        connection,
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
}

} // namespace

WindowShape::WindowShape()
{
    qApp->installNativeEventFilter(this);
}

void WindowShape::setWindow(xcb_window_t window)
{
    static const auto isAsked = (askForVersion(qtConnection()), true);
    Q_UNUSED(isAsked)
    m_window = window;
    m_frames.clear();
    m_input.reset();
    m_bounding.reset();
}

void WindowShape::setInput(const QRegion& region)
{
    if (m_window == XCB_NONE || m_input == region) {
        return;
    }
    m_input = region;
    auto* connection = qtConnection();
    const auto shape = rectangles(region);
    const auto id = xcb_generate_id(connection);
    xcb_xfixes_create_region(connection, id, uint32_t(shape.size()), shape.data());
    xcb_xfixes_set_window_shape_region(connection, m_window, XCB_SHAPE_SK_INPUT, 0, 0, id);
    xcb_xfixes_destroy_region(connection, id);
    xcb_flush(connection);
}

void WindowShape::setBounding(const std::optional<QRegion>& region)
{
    if (m_window == XCB_NONE || m_bounding == region) {
        return;
    }
    m_bounding = region;
    auto* connection = qtConnection();
    if (region) {
        shapeAs(m_window, *region);
    } else {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, 0, 0,
                       XCB_NONE);
    }
    xcb_flush(connection);
}

/// Something follows at once: what other programs bring into sight has another number.
void WindowShape::setBoundingOfFrame(const QRegion& region)
{
    if (m_window == XCB_NONE || m_bounding == region) {
        return;
    }
    m_bounding = region;
    m_frames << shapeAs(m_window, region);
    xcb_no_operation(qtConnection());
    xcb_flush(qtConnection());
}

/// Events bear the number of the latest request that the server had done by then.
bool WindowShape::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event == nullptr) {
        return false;
    }
    while (!m_frames.isEmpty() && int32_t(m_frames.first() - event->full_sequence) < 0) {
        m_frames.removeFirst();
    }
    return !m_frames.isEmpty() && m_frames.first() == event->full_sequence
        && eventKind(*event) == XCB_EXPOSE
        && reinterpret_cast<const xcb_expose_event_t*>(event)->window == m_window;
}

} // namespace quib
