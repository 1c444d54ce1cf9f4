#include "platform/linux/x11/stacking.h"

#include "platform/linux/x11/base/xserver.h"

#include <algorithm>
#include <array>
#include <span>

namespace quib {

namespace {

/// Window managers put their windows into frames, and frames into frames.
constexpr int MostFrames = 3;

using Tree = XcbOwned<xcb_query_tree_reply_t>;

Tree treeOf(xcb_window_t window)
{
    auto* connection = qtConnection();
    return Tree(xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

/// From the lowest to the highest.
std::span<const xcb_window_t> childrenIn(const Tree& tree)
{
    if (!tree) {
        return {};
    }
    return {xcb_query_tree_children(tree.get()), tree->children_len};
}

std::span<const xcb_window_t> above(xcb_window_t window, const Tree& desktop)
{
    const auto all = childrenIn(desktop);
    const auto place = std::ranges::find(all, window);
    return place == all.end() ? all.last(0) : all.subspan(std::size_t(place - all.begin()) + 1);
}

/// Every window manager gives the windows that it looks after a state.
bool hasState(xcb_window_t window)
{
    static const auto state = atomNamed(qtConnection(), "WM_STATE");
    auto* connection = qtConnection();
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, state, XCB_ATOM_ANY, 0, 0), nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

bool holdsManaged(xcb_window_t window, int frames) // NOLINT(misc-no-recursion): as deep as frames
{
    if (hasState(window)) {
        return true;
    }
    const auto inside = frames > 0 ? treeOf(window) : Tree();
    return std::ranges::any_of(childrenIn(inside), [frames](xcb_window_t child) {
        return holdsManaged(child, frames - 1);
    });
}

/// What does not ask to be left alone counts, so that it is no matter whether a window manager has
/// already seen it, or whether there is one.
bool isShownAndManaged(xcb_window_t window)
{
    auto* connection = qtConnection();
    const XcbOwned<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE
        && reply->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT
        && (reply->override_redirect == 0 || holdsManaged(window, MostFrames));
}

void put(xcb_window_t window, xcb_stack_mode_t mode, xcb_window_t sibling)
{
    auto* connection = qtConnection();
    const std::array<uint32_t, 2> values{sibling, mode};
    // Checked, so that Qt does not print the error where one of them is gone.
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(
        connection,
        xcb_configure_window_checked(connection, window,
                                     XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
                                     values.data())));
}

} // namespace

xcb_window_t nextAbove(xcb_window_t window)
{
    const auto desktop = treeOf(rootWindow(qtConnection()));
    const auto higher = above(window, desktop);
    return higher.empty() ? xcb_window_t(XCB_NONE) : higher.front();
}

xcb_window_t highestManagedAbove(xcb_window_t window)
{
    const auto desktop = treeOf(rootWindow(qtConnection()));
    const auto higher = above(window, desktop);
    const auto highest = std::find_if(higher.rbegin(), higher.rend(), isShownAndManaged);
    return highest == higher.rend() ? xcb_window_t(XCB_NONE) : *highest;
}

void giveToRoot(xcb_window_t window)
{
    auto* connection = qtConnection();
    const XcbOwned<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (place) {
        xcb_reparent_window(connection, window, place->root, place->x, place->y);
        xcb_flush(connection);
    }
}

void putRightAbove(xcb_window_t window, xcb_window_t sibling)
{
    put(window, XCB_STACK_MODE_ABOVE, sibling);
}

void putRightBelow(xcb_window_t window, xcb_window_t sibling)
{
    put(window, XCB_STACK_MODE_BELOW, sibling);
}

} // namespace quib
