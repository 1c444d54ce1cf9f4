#pragma once

#include <span>

#include <sys/types.h>

/// Measurements of programs on the screen; each prints a line of figures for each command.

using Words = std::span<char* const>;

// Left alone.

/// Milliseconds from the start to the first frame: median, and nine in ten.
void measureStart(int rounds, Words commands);

/// KiB: resident, private dirty.
void measureMemory(int rounds, Words commands);

/// A minute's processor time in milliseconds, own and the server's, and switches a second.
void measureIdle(int seconds, pid_t server, Words commands);

/// The same while the pointer moves 500 times a second, far away.
void measureMoving(int seconds, pid_t server, Words commands);

/// Redraws a second, and the pixels of the median and of the largest.
void measureRedraws(int seconds, Words commands);

// In use.

/// Milliseconds from the pointer on the notch to the first change below it: median, 99 in 100, and
/// the very first time.
void measureHover(int rounds, Words commands);

/// Milliseconds from the pointer on the notch of a program that was never opened to the first
/// change below it, and of the longest gap between the frames after that, in which the card is
/// built: medians.
void measureFirst(int rounds, Words commands);

/// Milliseconds from a key to the first change in the text field: median and 99 in 100.
void measureKeys(int rounds, Words commands);

/// KiB private and dirty after a hundred expansions over all tabs, and after the last one.
void measureExpansions(int count, Words commands);

/// KiB private and dirty, collapsed again after each tab was shown once.
void measureTabs(int rounds, Words commands);

/// KiB resident before a task is added, and after that has been saved.
void measureSave(int rounds, Words commands);

/// While the card opens: how often the window is told to be drawn in another shape, a frame on
/// average and at most.
void measureShapes(int rounds, Words commands);

/// For each tab: frames a second while the card springs open, the longest gap between two of them,
/// and how many gaps of how many are longer than 33 ms.
void measureSpring(int rounds, int scale, Words commands);
