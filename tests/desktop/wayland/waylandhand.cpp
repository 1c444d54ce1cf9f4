// Through Wayland: as compositors built on wlroots offer it, or as KWin does.
#include "hand.h"

#include "fake-input-client.h"
#include "virtualinput-client.h"

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <chrono>
#include <string_view>

namespace {

/// What it is made of is the compositor's to find.
constexpr std::string_view Keymap = "xkb_keymap {"
                                    "xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
                                    "xkb_types { include \"complete\" };"
                                    "xkb_compat { include \"complete\" };"
                                    "xkb_symbols { include \"pc+us+inet(evdev)\" }; };";

uint32_t now()
{
    using namespace std::chrono;
    return static_cast<uint32_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

/// What the compositor offers of all that.
struct Offers {
    wl_display* display = nullptr;
    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    org_kde_kwin_fake_input* fakeInput = nullptr;
};

template <typename Interface>
void bind(wl_registry* registry, uint32_t name, const wl_interface& description,
          Interface*& offered)
{
    if (!offered) {
        offered = static_cast<Interface*>(wl_registry_bind(
            registry, name, &description, static_cast<uint32_t>(description.version)));
    }
}

void announce(void* data, wl_registry* registry, uint32_t name, const char* interface,
              uint32_t version)
{
    auto& offers = *static_cast<Offers*>(data);
    const std::string_view what(interface);
    if (what == wl_seat_interface.name && !offers.seat) {
        offers.seat
            = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
    } else if (what == zwlr_virtual_pointer_manager_v1_interface.name) {
        bind(registry, name, zwlr_virtual_pointer_manager_v1_interface, offers.pointers);
    } else if (what == zwp_virtual_keyboard_manager_v1_interface.name) {
        bind(registry, name, zwp_virtual_keyboard_manager_v1_interface, offers.keyboards);
    } else if (what == org_kde_kwin_fake_input_interface.name && version >= 4) {
        offers.fakeInput = static_cast<org_kde_kwin_fake_input*>(
            wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4));
    }
}

void withdraw(void* /*data*/, wl_registry* /*registry*/, uint32_t /*name*/) { }

Offers lookAround()
{
    static constexpr wl_registry_listener Listener{announce, withdraw};
    static Offers offers; // As long as the registry.
    offers.display = wl_display_connect(nullptr);
    if (!offers.display) {
        throw NoHand{"there is no compositor"};
    }
    wl_registry_add_listener(wl_display_get_registry(offers.display), &Listener, &offers);
    wl_display_roundtrip(offers.display);
    return offers;
}

class WlrHand : public Hand {
public:
    WlrHand(const Offers& offers, QSize screens)
        : m_display(offers.display)
        , m_screens(screens)
        , m_pointer(
              zwlr_virtual_pointer_manager_v1_create_virtual_pointer(offers.pointers, offers.seat))
        , m_keyboard(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(offers.keyboards,
                                                                             offers.seat))
    {
        const int file = memfd_create("keymap", MFD_CLOEXEC);
        constexpr auto Size = Keymap.size() + 1; // With the NUL.
        if (file < 0 || ::write(file, Keymap.data(), Size) != ssize_t(Size)) {
            throw NoHand{"no keymap can be written"};
        }
        zwp_virtual_keyboard_v1_keymap(m_keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, Size);
        wl_display_flush(m_display);
        ::close(file);
    }

    void moveTo(QPoint point) override
    {
        zwlr_virtual_pointer_v1_motion_absolute(
            m_pointer, now(), static_cast<uint32_t>(point.x()), static_cast<uint32_t>(point.y()),
            static_cast<uint32_t>(m_screens.width()), static_cast<uint32_t>(m_screens.height()));
        zwlr_virtual_pointer_v1_frame(m_pointer);
    }

    void button(uint32_t code, bool isDown) override
    {
        zwlr_virtual_pointer_v1_button(m_pointer, now(), code, isDown);
        zwlr_virtual_pointer_v1_frame(m_pointer);
    }

    /// A virtual keyboard tells its modifiers itself.
    void key(uint32_t code, bool isDown) override
    {
        const uint32_t modifier = code == KEY_LEFTSHIFT ? 1 : code == KEY_LEFTCTRL ? 4 : 0;
        zwp_virtual_keyboard_v1_key(m_keyboard, now(), code, isDown);
        if (modifier != 0) {
            m_modifiers = isDown ? m_modifiers | modifier : m_modifiers & ~modifier;
            zwp_virtual_keyboard_v1_modifiers(m_keyboard, m_modifiers, 0, 0, 0);
        }
    }

    void setScreens(QSize all) override { m_screens = all; }
    bool isHeard() override { return wl_display_roundtrip(m_display) >= 0; }

private:
    wl_display* m_display;
    QSize m_screens;
    zwlr_virtual_pointer_v1* m_pointer;
    zwp_virtual_keyboard_v1* m_keyboard;
    uint32_t m_modifiers = 0;
};

class KWinHand : public Hand {
public:
    explicit KWinHand(const Offers& offers)
        : m_display(offers.display)
        , m_input(offers.fakeInput)
    {
        org_kde_kwin_fake_input_authenticate(m_input, "hand", "tests");
    }

    void moveTo(QPoint point) override
    {
        org_kde_kwin_fake_input_pointer_motion_absolute(m_input, wl_fixed_from_int(point.x()),
                                                        wl_fixed_from_int(point.y()));
    }
    void button(uint32_t code, bool isDown) override
    {
        org_kde_kwin_fake_input_button(m_input, code, isDown);
    }
    void key(uint32_t code, bool isDown) override
    {
        org_kde_kwin_fake_input_keyboard_key(m_input, code, isDown);
    }
    void setScreens(QSize /*all*/) override { }
    bool isHeard() override { return wl_display_roundtrip(m_display) >= 0; }

private:
    wl_display* m_display;
    org_kde_kwin_fake_input* m_input;
};

} // namespace

std::unique_ptr<Hand> makeWaylandHand(QSize screens)
{
    const auto offers = lookAround();
    if (offers.fakeInput) {
        return std::make_unique<KWinHand>(offers);
    }
    if (!offers.seat || !offers.pointers || !offers.keyboards) {
        throw NoHand{
            "the compositor offers programs neither virtual pointer and keyboard nor fake input"};
    }
    return std::make_unique<WlrHand>(offers, screens);
}
