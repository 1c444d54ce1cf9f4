#include "model/isodate.h"

#include <chrono>

namespace quib {

namespace {

using namespace std::chrono;

constexpr std::string_view Form = "0000-00-00T00:00:00Z";

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool hasForm(std::string_view text)
{
    if (text.size() != Form.size()) {
        return false;
    }
    for (std::size_t at = 0; at < Form.size(); ++at) {
        const bool fits = Form[at] == '0' ? isDigit(text[at]) : text[at] == Form[at];
        if (!fits) {
            return false;
        }
    }
    return true;
}

int twoDigits(std::string_view text, std::size_t at)
{
    return (text[at] - '0') * 10 + (text[at + 1] - '0');
}

void putTwoDigits(IsoDate& out, std::size_t at, unsigned value)
{
    out[at] = static_cast<char>('0' + value / 10);
    out[at + 1] = static_cast<char>('0' + value % 10);
}

} // namespace

std::optional<IsoDate> isoDate(const QDateTime& moment)
{
    const sys_time<milliseconds> exact{milliseconds{moment.toMSecsSinceEpoch()}};
    const auto whole = floor<seconds>(exact);
    const auto day = floor<days>(whole);
    const year_month_day date{day};
    const auto year = static_cast<int>(date.year());
    if (!moment.isValid() || !date.ok() || year < 0 || year > 9999) {
        return {};
    }
    const auto ofDay = static_cast<unsigned>((whole - day).count());
    IsoDate out{};
    Form.copy(out.data(), out.size());
    putTwoDigits(out, 0, static_cast<unsigned>(year) / 100);
    putTwoDigits(out, 2, static_cast<unsigned>(year) % 100);
    putTwoDigits(out, 5, static_cast<unsigned>(date.month()));
    putTwoDigits(out, 8, static_cast<unsigned>(date.day()));
    putTwoDigits(out, 11, ofDay / 3600);
    putTwoDigits(out, 14, ofDay % 3600 / 60);
    putTwoDigits(out, 17, ofDay % 60);
    return out;
}

std::optional<QDateTime> parseIsoDate(std::string_view text)
{
    if (!hasForm(text)) {
        return {};
    }
    const year_month_day date{year{twoDigits(text, 0) * 100 + twoDigits(text, 2)},
                              month{static_cast<unsigned>(twoDigits(text, 5))},
                              day{static_cast<unsigned>(twoDigits(text, 8))}};
    const hours hour{twoDigits(text, 11)};
    const minutes minute{twoDigits(text, 14)};
    const seconds second{twoDigits(text, 17)};
    if (!date.ok() || hour >= 24h || minute >= 60min || second >= 60s) {
        return {};
    }
    const milliseconds sinceEpoch = sys_days{date}.time_since_epoch() + hour + minute + second;
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), Qt::UTC);
}

} // namespace quib
