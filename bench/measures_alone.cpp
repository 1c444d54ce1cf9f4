#include "measures.h"

#include "desk.h"
#include "program.h"

#include <cstdio>
#include <map>
#include <string>
#include <thread>

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using std::this_thread::sleep_for;
using std::this_thread::sleep_until;

namespace {

constexpr uint32_t Black = 0;

double startOnce(Screen& screen, const std::string& command)
{
    screen.waitUntil("the screen to be empty", [&] { return screen.pixel(InTheNotch) != Black; });
    const auto begin = steady_clock::now();
    const Program program(command);
    const auto shown
        = screen.waitUntil("the first frame", [&] { return screen.pixel(InTheNotch) == Black; });
    sleep_for(300ms); // Ending while still starting is another thing.
    return Milliseconds(shown - begin).count();
}

/// What programs use while something goes on until a moment.
template <typename GoOn>
void measureUse(int seconds, pid_t server, Words commands, GoOn goOnUntil)
{
    const auto perMinute = [&](auto before, auto after) {
        return Milliseconds(after.processor - before.processor).count() * 60 / seconds;
    };
    for (const auto* command : commands) {
        const Program program(command);
        sleep_for(Settled);
        const auto own = usageOf(program.process());
        const auto servers = usageOf(server);
        goOnUntil(steady_clock::now() + std::chrono::seconds(seconds));
        const auto ownLater = usageOf(program.process());
        std::printf("%.0f %.0f %.1f\n", perMinute(own, ownLater),
                    perMinute(servers, usageOf(server)),
                    static_cast<double>(ownLater.switches - own.switches) / seconds);
    }
}

} // namespace

void measureStart(int rounds, Words commands)
{
    Screen screen;
    screen.moveTo(FarAway);
    std::map<std::string, Samples> samples;
    for (int round = 0; round <= rounds; ++round) {
        for (const auto* command : commands) {
            const auto took = startOnce(screen, command);
            if (round > 0) { // The first one warms the caches of files.
                samples[command].push_back(took);
            }
        }
    }
    for (const auto* command : commands) {
        std::printf("%.1f %.1f\n", percentile(samples[command], 0.5),
                    percentile(samples[command], 0.9));
    }
}

void measureMemory(int rounds, Words commands)
{
    Screen().moveTo(FarAway);
    for (const auto* command : commands) {
        Samples resident;
        Samples dirty;
        for (int round = 0; round < rounds; ++round) {
            const Program program(command);
            sleep_for(Settled);
            const auto memory = memoryOf(program.process());
            resident.push_back(static_cast<double>(memory.resident));
            dirty.push_back(static_cast<double>(memory.privateDirty));
        }
        std::printf("%.0f %.0f\n", percentile(resident, 0.5), percentile(dirty, 0.5));
    }
}

void measureIdle(int seconds, pid_t server, Words commands)
{
    Screen().moveTo(FarAway);
    measureUse(seconds, server, commands, [](steady_clock::time_point end) { sleep_until(end); });
}

void measureMoving(int seconds, pid_t server, Words commands)
{
    Screen screen;
    screen.moveTo(FarAway);
    measureUse(seconds, server, commands, [&screen](steady_clock::time_point end) {
        for (int step = 0; steady_clock::now() < end; ++step) {
            screen.moveTo({.x = FarAway.x + step % 200, .y = FarAway.y});
            sleep_for(2ms);
        }
    });
}

void measureRedraws(int seconds, Words commands)
{
    Screen screen;
    screen.moveTo(FarAway);
    for (const auto* command : commands) {
        const Program program(command);
        sleep_for(Settled);
        Samples pixels;
        for (const auto& redraw : screen.redrawsWithin(std::chrono::seconds(seconds))) {
            pixels.push_back(redraw.pixels);
        }
        const auto count = pixels.size();
        pixels.push_back(0);
        std::printf("%.1f %.0f %.0f\n", static_cast<double>(count) / seconds,
                    percentile(pixels, 0.5), percentile(pixels, 1));
    }
}
