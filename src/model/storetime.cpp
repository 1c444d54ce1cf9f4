#include "model/billing/timesheet.h"
#include "model/file/atomicfile.h"
#include "model/store.h"
#include "model/texts/nativepath.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

// The store's operations on time entries.

namespace quib {

namespace {

constexpr std::chrono::milliseconds ShortestKept = 30s;
constexpr std::size_t MostTallies = 8; // Views ask about few moments: today, this week, this month.

bool isRunning(const TimeEntry& entry)
{
    return !entry.end;
}

} // namespace

std::optional<TimeEntry> Store::runningEntry() const
{
    const auto& entries = data().entries;
    return hasRunningEntry() ? std::optional(entries.at(m_runningRow)) : std::nullopt;
}

QDateTime Store::runningSince() const
{
    const auto& entries = data().entries;
    return hasRunningEntry() ? entries.at(m_runningRow).start : QDateTime();
}

QList<ClientTotal> Store::totals(const QDateTime& since) const
{
    const auto& workspace = data();
    auto found = std::ranges::find(m_tallies, since, &Tally::since);
    if (found == m_tallies.end()) {
        if (m_tallies.size() == MostTallies) {
            m_tallies.clear();
        }
        found = m_tallies.emplace(m_tallies.end(), workspace.entries, since);
    }
    return found->totals(workspace.clients, m_surroundings.clock());
}

void Store::startTimer(const std::optional<QUuid>& client, const QString& note)
{
    endRunningEntry();
    workspace().entries.prepend({.id = QUuid::createUuid(),
                                 .clientID = client,
                                 .start = m_surroundings.clock(),
                                 .note = note});
    entriesWereReplaced();
    announce(&Store::entriesChanged);
}

void Store::stopTimer()
{
    if (endRunningEntry()) {
        announce(&Store::entriesChanged);
    }
}

std::optional<QUrl> Store::exportTimesheet() const
{
    const auto now = m_surroundings.clock();
    const auto folder = downloadsFolder();
    if (!folder) {
        return {};
    }
    const auto path = *folder + u'/' + timesheetName(now, m_surroundings.locale);
    const auto pieces = [&](const ByteSink& sink) { return writeTimesheet(data(), now, sink); };
    const bool isWritten = replaceFile(nativePath(path), pieces, NewFile::Usual);
    return isWritten ? std::optional(QUrl::fromLocalFile(path)) : std::nullopt;
}

bool Store::endRunningEntry()
{
    auto& entries = workspace().entries;
    if (!hasRunningEntry()) {
        return false;
    }
    auto& running = entries[m_runningRow];
    running.end = m_surroundings.clock();
    if (running.start.msecsTo(*running.end) < ShortestKept.count()) {
        entries.removeAt(m_runningRow);
    }
    entriesWereReplaced();
    return true;
}

void Store::entriesWereReplaced() const
{
    const auto running = std::ranges::find_if(std::as_const(m_data.entries), isRunning);
    const bool found = running != m_data.entries.cend();
    m_runningRow = found ? running - m_data.entries.cbegin() : -1;
    m_tallies.clear();
}

} // namespace quib
