#include "model/time/isodate.h"

#include "model/time/utc.h"

#include <chrono>

namespace quib {

namespace {

using namespace std::chrono;

constexpr std::string_view Form = "0000-00-00T00:00:00Z";

/// Reads the digits of a text of the right length, and keeps in mind whether all of them were.
class Digits {
public:
    explicit Digits(std::string_view text)
        : m_text(text)
    {
    }

    bool areValid() const { return m_valid; }

    int two(std::size_t at) { return one(at) * 10 + one(at + 1); }

private:
    int one(std::size_t at)
    {
        const int value = m_text[at] - '0';
        m_valid &= value >= 0 && value <= 9;
        return value;
    }

    std::string_view m_text;
    bool m_valid = true;
};

bool hasForm(std::string_view text)
{
    return text.size() == Form.size() && text[4] == '-' && text[7] == '-' && text[10] == 'T'
        && text[13] == ':' && text[16] == ':' && text[19] == 'Z';
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
    Digits digits(text);
    const year_month_day date{year{digits.two(0) * 100 + digits.two(2)},
                              month{static_cast<unsigned>(digits.two(5))},
                              day{static_cast<unsigned>(digits.two(8))}};
    const hours hour{digits.two(11)};
    const minutes minute{digits.two(14)};
    const seconds second{digits.two(17)};
    if (!digits.areValid() || !date.ok() || hour >= 24h || minute >= 60min || second >= 60s) {
        return {};
    }
    const milliseconds sinceEpoch = sys_days{date}.time_since_epoch() + hour + minute + second;
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), Utc);
}

} // namespace quib
