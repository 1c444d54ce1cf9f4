#include "model/file/temporaryname.h"

#include <QByteArray>
#include <QRandomGenerator>

#include <charconv>

#include <unistd.h>

using namespace std::string_view_literals;

namespace quib {

namespace {

constexpr auto Start = ".korvel-quib-"sv; // Then the process, a hyphen and the letters.
constexpr std::size_t Letters = 16; // Of a random number, so that a process of that id has others.

std::string randomLetters()
{
    const auto number = QRandomGenerator::system()->generate64();
    return QByteArray::number(number, 16).rightJustified(Letters, '0').toStdString();
}

bool areLetters(std::string_view text)
{
    return text.size() == Letters
        && text.find_first_not_of("0123456789abcdef"sv) == std::string_view::npos;
}

/// As we would write it, so without zeros in front.
std::optional<pid_t> processIn(std::string_view text)
{
    pid_t process = 0;
    const auto* const end = text.data() + text.size();
    const bool isNumber = std::from_chars(text.data(), end, process).ptr == end;
    return isNumber && process > 0 && std::to_string(process) == text ? std::optional(process)
                                                                      : std::nullopt;
}

} // namespace

std::string temporaryName()
{
    return std::string(Start) + std::to_string(::getpid()) + '-' + randomLetters();
}

std::optional<pid_t> makerOf(std::string_view name)
{
    const bool isOurs = name.starts_with(Start) && name.size() > Start.size() + Letters + 1
        && name[name.size() - Letters - 1] == '-' && areLetters(name.substr(name.size() - Letters));
    return isOurs ? processIn(name.substr(Start.size(), name.size() - Start.size() - Letters - 1))
                  : std::nullopt;
}

} // namespace quib
