#include "measures.h"

#include "desk.h"
#include "hands.h"
#include "program.h"

#include <algorithm>
#include <cstdio>
#include <thread>

using std::this_thread::sleep_for;

void measureTabs(int rounds, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        Samples dirty;
        for (int round = 0; round < rounds; ++round) {
            const RestingProgram program(screen, command);
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
            const RestingProgram program(screen, command);
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

void measureExpansions(int count, Words commands)
{
    Screen screen;
    for (const auto* command : commands) {
        const RestingProgram program(screen, command);
        Memory early;
        for (int number = 1; number <= count; ++number) {
            visitTab(screen, number);
            if (number == std::min(count, 100)) {
                sleep_for(PutAway);
                early = memoryOf(program.process());
            }
        }
        sleep_for(PutAway);
        std::printf("%ld %ld\n", early.privateDirty, memoryOf(program.process()).privateDirty);
    }
}
