#include "platform/linux/wayland/layershell.h"

#include "platform/linux/wayland/dispatching.h"

#include <QByteArrayView>

#include <algorithm>
#include <memory>

#include <layer-shell-client.h>
#include <wayland-client.h>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr uint32_t KnownVersion = 4;
/// Compositors answer in a millisecond, but KWin, which first reads the whole program that asks: in
/// a tenth of a second, and more where the disk has much to do, as when a session starts.
constexpr auto Patience = 5s;

struct Disconnected {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};

/// On whose queue a new object is born.
template <typename Proxy>
struct Wrapped {
    Wrapped(Proxy* proxy, wl_event_queue* queue)
        : wrapper(static_cast<Proxy*>(wl_proxy_create_wrapper(proxy)))
    {
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue);
    }
    ~Wrapped() { wl_proxy_wrapper_destroy(wrapper); }
    Wrapped(const Wrapped&) = delete;
    Wrapped& operator=(const Wrapped&) = delete;

    Proxy* wrapper;
};

} // namespace

struct LayerShell::Listening {
    static void offered(void* shell, wl_registry* registry, uint32_t name, const char* interface,
                        uint32_t version)
    {
        if (QByteArrayView(interface) == zwlr_layer_shell_v1_interface.name) {
            static_cast<LayerShell*>(shell)->m_shell = static_cast<zwlr_layer_shell_v1*>(
                wl_registry_bind(registry, name, &zwlr_layer_shell_v1_interface,
                                 std::min(version, KnownVersion)));
        }
    }
    static void gone(void* /*shell*/, wl_registry* /*registry*/, uint32_t /*name*/) { }
    static void answered(void* isAnswered, wl_callback* /*callback*/, uint32_t /*serial*/)
    {
        *static_cast<bool*>(isAnswered) = true;
    }

    static constexpr wl_registry_listener Offers{.global = offered, .global_remove = gone};
    static constexpr wl_callback_listener Answer{.done = answered};
};

LayerShell::LayerShell(wl_display* display)
    : m_display(display)
    , m_queue(wl_display_create_queue(display))
{
    const Wrapped own(display, m_queue);
    m_registry = wl_display_get_registry(own.wrapper);
    wl_registry_add_listener(m_registry, &Listening::Offers, this);
    bool isAnswered = false;
    auto* answer = wl_display_sync(own.wrapper);
    wl_callback_add_listener(answer, &Listening::Answer, &isAnswered);
    dispatchUntil(display, m_queue, Patience, [&] { return isAnswered; });
    wl_callback_destroy(answer);
}

LayerShell::~LayerShell()
{
    if (m_shell != nullptr) {
        const auto canBeTold = zwlr_layer_shell_v1_get_version(m_shell) >= 3;
        canBeTold ? zwlr_layer_shell_v1_destroy(m_shell)
                  : wl_proxy_destroy(reinterpret_cast<wl_proxy*>(m_shell));
    }
    wl_registry_destroy(m_registry);
    wl_event_queue_destroy(m_queue);
}

bool isLayerShellOffered()
{
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return false; // The library would guess a name.
    }
    const std::unique_ptr<wl_display, Disconnected> display(wl_display_connect(nullptr));
    return display && LayerShell(display.get()).isThere();
}

} // namespace quib
