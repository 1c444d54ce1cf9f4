/// Measures whole programs on an X screen, as a user meets them. bench/whole-program puts the
/// figures into a table.

#include "measures.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

/// The floor of being idle: only the question where the pointer is, sixty times a second.
[[noreturn]] void pollForEver()
{
    auto* connection = xcb_connect(nullptr, nullptr);
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    for (auto tick = steady_clock::now();; tick += 16ms) {
        std::this_thread::sleep_until(tick);
        auto* reply
            = xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr);
        if (reply == nullptr) {
            std::exit(1);
        }
        std::free(reply);
    }
}

void measure(std::string_view what, Words words)
{
    const auto number = [&](std::size_t index) {
        return index < words.size() ? std::stoi(words[index])
                                    : throw std::runtime_error("how many?");
    };
    if (what == "poll") {
        pollForEver();
    } else if (what == "start") {
        measureStart(number(0), words.subspan(1));
    } else if (what == "memory") {
        measureMemory(number(0), words.subspan(1));
    } else if (what == "idle") {
        measureIdle(number(0), number(1), words.subspan(2));
    } else if (what == "moving") {
        measureMoving(number(0), number(1), words.subspan(2));
    } else if (what == "redraws") {
        measureRedraws(number(0), words.subspan(1));
    } else if (what == "hover") {
        measureHover(number(0), words.subspan(1));
    } else if (what == "first") {
        measureFirst(number(0), words.subspan(1));
    } else if (what == "tabs") {
        measureTabs(number(0), words.subspan(1));
    } else if (what == "save") {
        measureSave(number(0), words.subspan(1));
    } else if (what == "keys") {
        measureKeys(number(0), words.subspan(1));
    } else if (what == "expansions") {
        measureExpansions(number(0), words.subspan(1));
    } else if (what == "shapes") {
        measureShapes(number(0), words.subspan(1));
    } else if (what == "spring") {
        measureSpring(number(0), number(1), words.subspan(2));
    } else {
        throw std::runtime_error("there is no such measurement");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        const Words words(argv, static_cast<std::size_t>(argc));
        measure(argc > 1 ? argv[1] : "", words.subspan(std::min<std::size_t>(2, words.size())));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "desktop_probe: %s\n", error.what());
        return 1;
    }
    return 0;
}
