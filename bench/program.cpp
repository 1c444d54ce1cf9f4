#include "program.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string folderOf(pid_t process)
{
    return "/proc/" + std::to_string(process);
}

/// The number behind "key:" in a file of such lines.
long numberIn(const std::string& file, std::string_view key)
{
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(key)) {
            return std::stol(line.substr(key.size()));
        }
    }
    throw std::runtime_error("the program has ended: " + file);
}

std::vector<std::string> wordsOf(const std::string& command)
{
    std::istringstream text(command);
    return {std::istream_iterator<std::string>(text), {}};
}

std::vector<char*> pointersTo(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    std::ranges::transform(words, std::back_inserter(pointers),
                           [](auto& word) { return word.data(); });
    pointers.push_back(nullptr);
    return pointers;
}

std::string nameOf(const std::string& variable)
{
    return variable.substr(0, variable.find('=') + 1);
}

/// Ours, but for the variables given.
std::vector<std::string> environmentWith(const std::vector<std::string>& given)
{
    auto variables = given;
    for (char** ours = environ; *ours != nullptr; ++ours) {
        if (std::ranges::find(given, nameOf(*ours), nameOf) == given.end()) {
            variables.emplace_back(*ours);
        }
    }
    return variables;
}

} // namespace

Memory memoryOf(pid_t process)
{
    const auto file = folderOf(process) + "/smaps_rollup";
    return {.resident = numberIn(file, "Rss:"), .privateDirty = numberIn(file, "Private_Dirty:")};
}

Usage usageOf(pid_t process)
{
    Usage usage;
    numberIn(folderOf(process) + "/status", "VmRSS:"); // Only one that runs has any.
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(process) + "/task")) {
        long long ran = 0;
        std::ifstream(thread.path() / "schedstat") >> ran;
        usage.processor += std::chrono::nanoseconds(ran);
        const auto status = thread.path() / "status";
        usage.switches += numberIn(status, "voluntary_ctxt_switches:")
            + numberIn(status, "nonvoluntary_ctxt_switches:");
    }
    return usage;
}

Program::Program(const std::string& command)
{
    auto words = wordsOf(command);
    const auto program = std::ranges::find(words, std::string::npos,
                                           [](const auto& word) { return word.find('='); });
    auto environment = environmentWith({words.begin(), program});
    words.erase(words.begin(), program);
    const int error = posix_spawnp(&m_process, words.front().c_str(), nullptr, nullptr,
                                   pointersTo(words).data(), pointersTo(environment).data());
    if (error != 0) {
        throw std::runtime_error(command + ": " + std::strerror(error));
    }
}

Program::~Program()
{
    kill(m_process, SIGTERM);
    waitpid(m_process, nullptr, 0);
}
