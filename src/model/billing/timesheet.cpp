#include "model/billing/timesheet.h"

#include "model/locale/datetexts.h"
#include "model/texts/utf8.h"
#include "model/time/isodate.h"

#include <QDir>
#include <QHash>
#include <QStandardPaths>

#include <array>
#include <charconv>
#include <limits>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double MillisecondsPerHour = 3'600'000;
constexpr qsizetype BytesPerLine = 160;

/// What a line takes from the entry's client.
struct ClientColumns {
    QByteArray name;
    double rate = 0;
};

/// Room for the longest double with two decimals: its digits, the sign, the point.
using Decimals = std::array<char, std::numeric_limits<double>::max_exponent10 + 8>;

/// As "%.2f" in the C locale: rounds the exact value, halves to even.
void appendDecimals(QByteArray& out, double value)
{
    Decimals text; // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
    const auto end
        = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2);
    out.append(text.data(), end.ptr - text.data());
}

void appendDate(QByteArray& out, const QDateTime& moment)
{
    if (const auto text = isoDate(moment)) {
        out.append(text->data(), static_cast<qsizetype>(text->size()));
    }
}

void appendQuoted(QByteArray& out, const QByteArray& text)
{
    out.append('"').append(text).append('"');
}

QByteArray withDoubledQuotes(const QString& text)
{
    auto bytes = utf8Bytes(text);
    return bytes.contains('"') ? bytes.replace("\"", "\"\"") : bytes;
}

QHash<QUuid, ClientColumns> columnsByClient(const QList<Client>& clients)
{
    QHash<QUuid, ClientColumns> columns;
    for (const auto& client : clients) {
        if (!columns.contains(client.id)) {
            columns.insert(client.id, {utf8Bytes(client.name), client.hourlyRate});
        }
    }
    return columns;
}

void appendLine(QByteArray& out, const TimeEntry& entry, const ClientColumns& client,
                const QDateTime& now)
{
    const auto& end = entry.end ? *entry.end : now;
    const auto hours = static_cast<double>(entry.start.msecsTo(end)) / MillisecondsPerHour;
    appendQuoted(out.append('\n'), client.name);
    appendDate(out.append(','), entry.start);
    appendDate(out.append(','), end);
    appendDecimals(out.append(','), hours);
    appendDecimals(out.append(','), client.rate);
    appendDecimals(out.append(','), hours * client.rate);
    appendQuoted(out.append(','), withDoubledQuotes(entry.note));
}

bool giveAway(QByteArray& bytes, const ByteSink& sink)
{
    const bool isTaken = sink(bytes);
    bytes.resize(0); // Keeps its room.
    return isTaken;
}

} // namespace

bool writeTimesheet(const QuibData& data, const QDateTime& now, const ByteSink& sink)
{
    const auto columns = columnsByClient(data.clients);
    const ClientColumns nobody{.name = "No client"_ba};
    QByteArray out;
    out.reserve(2 * PieceOfBytes);
    out.append("client,start,end,hours,rate,amount,note");
    for (const auto& entry : data.entries) {
        const auto found = entry.clientID ? columns.constFind(*entry.clientID) : columns.cend();
        appendLine(out, entry, found == columns.cend() ? nobody : *found, now);
        if (out.size() >= PieceOfBytes && !giveAway(out, sink)) {
            return false;
        }
    }
    return sink(out);
}

QByteArray timesheetCsv(const QuibData& data, const QDateTime& now)
{
    QByteArray bytes;
    bytes.reserve((data.entries.size() + 1) * BytesPerLine);
    writeTimesheet(data, now, appendingTo(bytes));
    return bytes;
}

QString timesheetName(const QDateTime& now, const UserLocale& locale)
{
    return u"Korvel-timesheet-%1.csv"_s.arg(DateTexts(locale).numericDay(now));
}

std::optional<QString> downloadsFolder()
{
    const auto path = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return QDir::isAbsolutePath(path) ? std::optional(path) : std::nullopt;
}

} // namespace quib
