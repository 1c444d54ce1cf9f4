#include "hands.h"

#include "desk.h"

#include <thread>

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using std::this_thread::sleep_for;

RestingProgram::RestingProgram(Screen& screen, const char* command)
    : Program((screen.moveTo(FarAway), command))
{
    sleep_for(Settled);
}

Point tabButton(int number)
{
    return places::tabButton(number);
}

void visitTab(Screen& screen, int number)
{
    const auto before = screen.pixel(LowInTheCard);
    screen.moveTo(Notch);
    screen.waitUntil("the card", [&] { return screen.pixel(LowInTheCard) != before; });
    screen.click(tabButton(number % TabCount));
    sleep_for(30ms);
    screen.moveTo(FarAway);
    screen.waitUntil("the collapse", [&] { return screen.pixel(BelowTheNotch) == before; });
}

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

double typeOnce(Screen& screen, uint32_t symbol)
{
    const auto text = [&] { return screen.picture(FieldCorner, 240, 20); };
    const auto before = text();
    const auto begin = steady_clock::now();
    screen.pressKey(symbol);
    const auto changed = screen.waitUntil("the letter", [&] { return text() != before; });
    return Milliseconds(changed - begin).count();
}
