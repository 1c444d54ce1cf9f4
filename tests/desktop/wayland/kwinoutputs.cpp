#include "outputs.h"

#include "kde-output-device-v2-client.h"
#include "kde-output-management-v2-client.h"

#include <wayland-client.h>

#include <string_view>

namespace {

struct Offers {
    kde_output_management_v2* management = nullptr;
    QList<kde_output_device_v2*> outputs;
};

void announce(void* data, wl_registry* registry, uint32_t name, const char* interface,
              uint32_t /*version*/)
{
    auto& offers = *static_cast<Offers*>(data);
    const std::string_view what(interface);
    if (what == kde_output_management_v2_interface.name) {
        offers.management = static_cast<kde_output_management_v2*>(
            wl_registry_bind(registry, name, &kde_output_management_v2_interface, 1));
    } else if (what == kde_output_device_v2_interface.name) {
        offers.outputs << static_cast<kde_output_device_v2*>(
            wl_registry_bind(registry, name, &kde_output_device_v2_interface, 1));
    }
}

void withdraw(void* /*data*/, wl_registry* /*registry*/, uint32_t /*name*/) { }

enum class Answer { None, Applied, Failed };

template <Answer answer>
void note(void* data, kde_output_configuration_v2* /*configuration*/)
{
    *static_cast<Answer*>(data) = answer;
}

Answer apply(wl_display* display, const Offers& offers, const QList<int>& numbers)
{
    static constexpr kde_output_configuration_v2_listener Listener{note<Answer::Applied>,
                                                                   note<Answer::Failed>};
    constexpr int Width = 1600;
    auto answer = Answer::None;
    auto* wanted = kde_output_management_v2_create_configuration(offers.management);
    kde_output_configuration_v2_add_listener(wanted, &Listener, &answer);
    for (int i = 0; i < offers.outputs.size(); ++i) {
        const auto place = numbers.indexOf(i);
        kde_output_configuration_v2_enable(wanted, offers.outputs.at(i), place >= 0);
        if (place >= 0) {
            kde_output_configuration_v2_position(wanted, offers.outputs.at(i),
                                                 static_cast<int>(place) * Width, 0);
        }
    }
    kde_output_configuration_v2_apply(wanted);
    while (answer == Answer::None && wl_display_dispatch(display) >= 0) { }
    return answer;
}

} // namespace

QByteArray setOutputsOfKWin(const QList<int>& numbers)
{
    static constexpr wl_registry_listener Listener{announce, withdraw};
    Offers offers;
    static auto* display
        = wl_display_connect(nullptr); // Until the process ends, with all it knows.
    if (!display) {
        return "there is no compositor";
    }
    wl_registry_add_listener(wl_display_get_registry(display), &Listener, &offers);
    wl_display_roundtrip(display);
    if (!offers.management) {
        return "the compositor lets nobody change its outputs";
    }
    const auto answer = apply(display, offers, numbers);
    return answer == Answer::Applied ? QByteArray() : "the compositor refuses such outputs";
}
