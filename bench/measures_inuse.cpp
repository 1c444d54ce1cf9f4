#include "measures.h"

#include "desk.h"
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

constexpr uint32_t LetterX = 'x';
constexpr uint32_t Backspace = 0xff08;
constexpr uint32_t Return = 0xff0d;

/// At another scale things are farther from the middle of the screen's top edge.
Point scaled(Point point, int scale)
{
    return {.x = 800 + (point.x - 800) * scale, .y = point.y * scale};
}

Point tabButton(int number)
{
    return {.x = 450 + 42 + 15 + 32 * number, .y = 23};
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

double typeOnce(Screen& screen, uint32_t symbol)
{
    const auto text = [&] { return screen.picture(FieldCorner, 240, 20); };
    const auto before = text();
    const auto begin = steady_clock::now();
    screen.pressKey(symbol);
    const auto changed = screen.waitUntil("the letter", [&] { return text() != before; });
    return Milliseconds(changed - begin).count();
}

void visitTab(Screen& screen, int number)
{
    const auto before = screen.pixel(InTheCard);
    screen.moveTo(Notch);
    screen.waitUntil("the card", [&] { return screen.pixel(InTheCard) != before; });
    screen.click(tabButton(number % TabCount));
    sleep_for(30ms);
    screen.moveTo(FarAway);
    screen.waitUntil("the collapse", [&] { return screen.pixel(BelowTheNotch) == before; });
}

/// Brings the keyboard into the field for new tasks.
void openTaskField(Screen& screen)
{
    for (const auto point : {Notch, tabButton(TasksTab), Field}) {
        screen.moveTo(point);
        sleep_for(SprungBack);
        screen.click(point);
        sleep_for(SprungBack);
    }
    screen.lendKeyboard();
    sleep_for(SprungBack);
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
    screen.moveTo(FarAway);
    for (const auto* command : commands) {
        const Program program(command);
        sleep_for(Settled);
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
    screen.moveTo(FarAway);
    for (const auto* command : commands) {
        Samples samples;
        for (int round = 0; round < rounds; ++round) {
            const Program program(command);
            sleep_for(Settled);
            waitByChance();
            samples.push_back(expandOnce(screen));
        }
        std::printf("%.1f\n", percentile(samples, 0.5));
    }
}

void measureTabs(int rounds, Words commands)
{
    Screen screen;
    screen.moveTo(FarAway);
    for (const auto* command : commands) {
        Samples dirty;
        for (int round = 0; round < rounds; ++round) {
            const Program program(command);
            sleep_for(Settled);
            for (int number = 0; number < TabCount; ++number) {
                visitTab(screen, number);
                sleep_for(SprungBack);
            }
            sleep_for(PutAway);
            dirty.push_back(static_cast<double>(memoryOf(program.process()).privateDirty));
        }
        std::printf("%.0f\n", percentile(dirty, 0.5));
    }
}

void measureSave(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        Samples before;
        Samples after;
        for (int round = 0; round < rounds; ++round) {
            screen.moveTo(FarAway);
            const Program program(command);
            sleep_for(Settled);
            openTaskField(screen);
            typeOnce(screen, LetterX);
            screen.moveTo(FarAway);
            sleep_for(PutAway);
            before.push_back(static_cast<double>(memoryOf(program.process()).resident));
            screen.moveTo(Notch);
            sleep_for(SprungBack);
            screen.click(Field);
            screen.lendKeyboard();
            screen.pressKey(Return);
            sleep_for(Settled);
            screen.moveTo(FarAway);
            sleep_for(PutAway);
            after.push_back(static_cast<double>(memoryOf(program.process()).resident));
        }
        std::printf("%.0f %.0f\n", percentile(before, 0.5), percentile(after, 0.5));
    }
}

void measureKeys(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        screen.moveTo(FarAway);
        const Program program(command);
        sleep_for(Settled);
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

void measureExpansions(int count, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        screen.moveTo(FarAway);
        const Program program(command);
        sleep_for(Settled);
        Memory early;
        for (int number = 1; number <= count; ++number) {
            visitTab(screen, number);
            if (number == std::min(count, 100)) {
                sleep_for(Settled);
                early = memoryOf(program.process());
            }
        }
        sleep_for(Settled);
        std::printf("%ld %ld\n", early.privateDirty, memoryOf(program.process()).privateDirty);
    }
}

void measureSpring(int rounds, int scale, Words commands)
{
    Screen screen;
    screen.moveTo(FarAway);
    const Program program(commands.front());
    sleep_for(Settled);
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
