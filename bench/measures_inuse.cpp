#include "measures.h"

#include "desk.h"
#include "hands.h"
#include "program.h"

#include <cstdio>
#include <iterator>
#include <numeric>
#include <random>
#include <thread>

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using std::this_thread::sleep_for;

namespace {

/// At another scale things are farther from the middle of the screen's top edge.
Point scaled(Point point, int scale)
{
    return {.x = 800 + (point.x - 800) * scale, .y = point.y * scale};
}

/// A little while of chance, so that rounds meet a poll at any moment of its tick.
void waitByChance()
{
    static std::minstd_rand chance(20260302);
    sleep_for(std::chrono::microseconds(chance() % 16'000));
}

double expandOnce(Screen& screen)
{
    const auto before = screen.pixel(BelowTheNotch);
    const auto begin = steady_clock::now();
    screen.moveTo(Notch);
    const auto changed
        = screen.waitUntil("the card", [&] { return screen.pixel(BelowTheNotch) != before; });
    sleep_for(SprungBack);
    screen.moveTo(FarAway);
    screen.waitUntil("the collapse", [&] { return screen.pixel(BelowTheNotch) == before; });
    sleep_for(SprungBack);
    return Milliseconds(changed - begin).count();
}

/// The gaps between the frames of one expansion, while the spring moves fast.
Samples frameGaps(Screen& screen)
{
    screen.moveTo(Notch);
    const auto redraws = screen.redrawsWithin(SprungBack);
    Samples gaps;
    for (std::size_t i = 1; i < redraws.size(); ++i) {
        if (redraws[i].time - redraws.front().time < 250ms) {
            gaps.push_back(Milliseconds(redraws[i].time - redraws[i - 1].time).count());
        }
    }
    return gaps;
}

/// What is measured of a program that was never opened.
template <typename Measure>
auto firstTime(Screen& screen, const char* command, Measure measure)
{
    const RestingProgram program(screen, command);
    waitByChance();
    return measure(screen);
}

void leave(Screen& screen, int scale, uint32_t empty)
{
    screen.moveTo(FarAway);
    screen.waitUntil("the collapse",
                     [&] { return screen.pixel(scaled(BelowTheNotch, scale)) == empty; });
    sleep_for(SprungBack);
}

void expandTo(Screen& screen, Point button)
{
    screen.moveTo(Notch);
    sleep_for(SprungBack);
    screen.click(button);
    sleep_for(SprungBack);
}

} // namespace

void measureHover(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        const RestingProgram program(screen, command);
        const auto first = expandOnce(screen);
        Samples samples;
        for (int round = 0; round < rounds; ++round) {
            waitByChance();
            samples.push_back(expandOnce(screen));
        }
        std::printf("%.1f %.1f %.1f\n", percentile(samples, 0.5), percentile(samples, 0.99), first);
    }
}

void measureFirst(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        Samples samples;
        Samples gaps;
        for (int round = 0; round < rounds; ++round) {
            samples.push_back(firstTime(screen, command, expandOnce));
            gaps.push_back(percentile(firstTime(screen, command, frameGaps), 1));
        }
        std::printf("%.1f %.1f\n", percentile(samples, 0.5), percentile(gaps, 0.5));
    }
}

void measureKeys(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        const RestingProgram program(screen, command);
        openTaskField(screen);
        Samples samples;
        for (int round = 0; round < rounds; ++round) {
            samples.push_back(typeOnce(screen, round % 2 == 0 ? LetterX : Backspace));
            sleep_for(100ms); // Shorter than the cursor's blinking.
            waitByChance();
        }
        std::printf("%.2f %.2f\n", percentile(samples, 0.5), percentile(samples, 0.99));
    }
}

void measureShapes(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        const RestingProgram program(screen, command);
        expandOnce(screen);
        Samples shapes;
        for (int round = 0; round < rounds; ++round) {
            screen.moveTo(Notch);
            for (const auto& redraw : screen.redrawsWithin(SprungBack)) {
                shapes.push_back(redraw.shapes);
            }
            screen.moveTo(FarAway);
            sleep_for(SprungBack);
        }
        const auto sum = std::accumulate(shapes.begin(), shapes.end(), 0.0);
        std::printf("%.2f %.0f\n", sum / static_cast<double>(shapes.size()), percentile(shapes, 1));
    }
}

void measureSpring(int rounds, int scale, Words commands)
{
    Screen screen;
    const RestingProgram program(screen, commands.front());
    const auto empty = screen.pixel(scaled(BelowTheNotch, scale));
    for (int tab = 0; tab < TabCount; ++tab) {
        expandTo(screen, scaled(tabButton(tab), scale));
        leave(screen, scale, empty);
        Samples gaps;
        for (int round = 0; round < rounds; ++round) {
            std::ranges::copy(frameGaps(screen), std::back_inserter(gaps));
            leave(screen, scale, empty);
        }
        const auto late = std::ranges::count_if(gaps, [](double gap) { return gap > 33; });
        const auto time = std::accumulate(gaps.begin(), gaps.end(), 0.0);
        std::printf("%.1f %.0f %td %zu\n", static_cast<double>(gaps.size()) * 1000 / time,
                    percentile(gaps, 1), late, gaps.size());
    }
}
