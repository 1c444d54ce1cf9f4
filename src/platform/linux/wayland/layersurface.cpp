#include "platform/linux/wayland/layersurface.h"

#include "platform/linux/wayland/dispatching.h"
#include "platform/linux/wayland/layershell.h"

#include <layer-shell-client.h>
#include <wayland-client.h>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr uint32_t TopEdge = 1;
constexpr int32_t OverAllReserved = -1;
constexpr auto Scope = "korvel-quib"; // Compositors may have rules for it.
constexpr uint32_t KnowsOnDemand = 4; // As the version of the layer shell.
constexpr auto Patience = 1s; // The compositor knows us by now, and answers in a millisecond.

} // namespace

struct LayerSurface::Listening {
    static void configured(void* surface, zwlr_layer_surface_v1* role, uint32_t serial,
                           uint32_t /*width*/, uint32_t /*height*/)
    {
        zwlr_layer_surface_v1_ack_configure(role, serial);
        static_cast<LayerSurface*>(surface)->m_isReady = true;
    }
    static void closed(void* surface, zwlr_layer_surface_v1* /*role*/)
    {
        static_cast<LayerSurface*>(surface)->m_isClosed = true;
        Q_EMIT static_cast<LayerSurface*>(surface)->closed();
    }

    static constexpr zwlr_layer_surface_v1_listener Events{.configure = configured,
                                                           .closed = closed};
};

LayerSurface::LayerSurface(const LayerShell& shell, wl_surface* surface, wl_output* output,
                           QSize size, Layer layer)
    : m_surface(surface)
    , m_role(zwlr_layer_shell_v1_get_layer_surface(shell.shell(), surface, output, uint32_t(layer),
                                                   Scope))
{
    zwlr_layer_surface_v1_add_listener(m_role, &Listening::Events, this);
    zwlr_layer_surface_v1_set_size(m_role, uint32_t(size.width()), uint32_t(size.height()));
    zwlr_layer_surface_v1_set_anchor(m_role, TopEdge);
    zwlr_layer_surface_v1_set_exclusive_zone(m_role, OverAllReserved);
    setKeyboard(Keyboard::Never);
    dispatchUntil(shell.display(), shell.queue(), Patience,
                  [this] { return m_isReady || m_isClosed; });
    // From now on Qt hears for us.
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(m_role), nullptr);
}

LayerSurface::~LayerSurface()
{
    zwlr_layer_surface_v1_destroy(m_role);
}

void LayerSurface::setKeyboard(Keyboard keyboard)
{
    const auto isKnown = zwlr_layer_surface_v1_get_version(m_role) >= KnowsOnDemand;
    const auto said = keyboard == Keyboard::OnDemand && !isKnown ? Keyboard::AtOnce : keyboard;
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_role, uint32_t(said));
    wl_surface_commit(m_surface);
}

} // namespace quib
