#include "model/time/systemtimezone.h"

#include <unistd.h>

#include <algorithm>
#include <array>

namespace quib {

namespace {

constexpr std::size_t LongestLink = 256;

/// "Europe/Paris" where the link goes to "/usr/share/zoneinfo/Europe/Paris"; else empty.
QByteArray linkedZone()
{
    constexpr QByteArrayView Folder = "/zoneinfo/";
    std::array<char, LongestLink> text{};
    const auto length = ::readlink("/etc/localtime", text.data(), text.size());
    const QByteArrayView target(text.data(), std::max<qsizetype>(length, 0));
    const auto found = target.indexOf(Folder);
    return found < 0 ? QByteArray() : target.sliced(found + Folder.size()).toByteArray();
}

/// Making one asks the disk time and again.
QTimeZone zoneNamed(const QByteArray& name)
{
    thread_local QTimeZone last;
    if (last.id() != name) {
        last = QTimeZone(name);
    }
    return last;
}

} // namespace

/// Once the link is missing for a moment, Qt keeps to what it has found elsewhere, whatever the
/// link says later.
QTimeZone systemTimeZone()
{
    const auto linked = qEnvironmentVariableIsEmpty("TZ") ? linkedZone() : QByteArray();
    const auto zone = linked.isEmpty() ? QTimeZone() : zoneNamed(linked);
    return zone.isValid() ? zone : QTimeZone::systemTimeZone();
}

} // namespace quib
