#pragma once

#include "program.h"
#include "screen.h"

#include <cstdint>

// What a user does with the panel.

inline constexpr uint32_t LetterX = 'x';
inline constexpr uint32_t Backspace = 0xff08;
inline constexpr uint32_t Return = 0xff0d;

/// A program that has started while the pointer is far away, and has come to rest.
class RestingProgram : public Program {
public:
    RestingProgram(Screen& screen, const char* command);
};

/// The middle of the button of a tab, from 0.
Point tabButton(int number);

/// Opens the card at that tab, of those that repeat after seven, and leaves it.
void visitTab(Screen& screen, int number);

/// Brings the keyboard into the field for new tasks.
void openTaskField(Screen& screen);

/// Presses a key in that field: milliseconds to the first change in it.
double typeOnce(Screen& screen, uint32_t symbol);
