#pragma once

namespace quib {

/// Has memory come from one heap for all threads, and blocks of more than 256 KiB from the system
/// itself, to which they return. To be called before there is a second thread.
void useOneHeap();

/// Gives back what is free in the heap. Takes a few milliseconds.
void trimMemory();

} // namespace quib
