#pragma once

#include <chrono>
#include <string>

#include <sys/types.h>

struct Memory {
    long resident = 0; ///< In KiB.
    long privateDirty = 0; ///< In KiB; what the program adds to what others have loaded already.
};

struct Usage {
    std::chrono::nanoseconds processor{0};
    long switches = 0; ///< How often the kernel put it aside, of its own will or not.
};

Memory memoryOf(pid_t process);
/// Of all its threads since they began.
Usage usageOf(pid_t process);

/// A program that runs until this value ends.
class Program {
public:
    /// Starts a command of plain words; leading words such as NAME=VALUE stand for its environment.
    explicit Program(const std::string& command);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    pid_t process() const { return m_process; }

private:
    pid_t m_process = 0;
};
