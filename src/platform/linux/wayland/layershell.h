#pragma once

struct wl_display;
struct wl_event_queue;
struct wl_output;
struct wl_registry;
struct wl_surface;
struct zwlr_layer_shell_v1;

namespace quib {

/// True when the compositor that the environment names lets panels lie above all windows. Needs no
/// application object.
bool isLayerShellOffered();

/// What lets a surface be a panel instead of a window. Its events and those of the surfaces that
/// are being made have a queue of their own, so that they can be waited for.
class LayerShell {
public:
    /// The connection is borrowed and outlives this.
    explicit LayerShell(wl_display* display);
    ~LayerShell();
    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;

    bool isThere() const { return m_shell != nullptr; }
    wl_display* display() const { return m_display; }
    wl_event_queue* queue() const { return m_queue; }
    zwlr_layer_shell_v1* shell() const { return m_shell; }

private:
    struct Listening;

    wl_display* m_display;
    wl_event_queue* m_queue;
    wl_registry* m_registry = nullptr;
    zwlr_layer_shell_v1* m_shell = nullptr; ///< Null where there is none.
};

} // namespace quib
