#include "model/datafile.h"
#include "model/datafolder.h"
#include "model/sampledata.h"
#include "model/store.h"

#include <algorithm>
#include <utility>

// The store's workspace, read from its file while the program starts.

namespace quib {

namespace {

bool hasRunningEntry(const QuibData& data)
{
    return std::ranges::any_of(data.entries, [](const TimeEntry& entry) { return !entry.end; });
}

} // namespace

Store::Store(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
    , m_saver(m_surroundings.schedule, m_surroundings.enterBackground)
    , m_loader(loading())
{
}

const QuibData& Store::data() const
{
    awaitData();
    return m_data;
}

QuibData& Store::workspace()
{
    awaitData();
    return m_data;
}

/// What the thread that loads is to do. It shares nothing with this one.
std::function<QuibData()> Store::loading()
{
    return [this, file = dataFile(), now = m_surroundings.clock(),
            findApplication = m_surroundings.findApplication] {
        auto loaded = loadQuibData(file);
        auto data = loaded ? *std::move(loaded) : sampleData(now, findApplication);
        if (quib::hasRunningEntry(data)) {
            QMetaObject::invokeMethod(this, &Store::tellOfTimer, Qt::QueuedConnection);
        }
        return data;
    };
}

/// Who asked before was told that none runs.
void Store::tellOfTimer()
{
    awaitData();
    Q_EMIT entriesChanged();
}

void Store::awaitData() const
{
    if (auto loaded = m_loader.take()) {
        m_data = *std::move(loaded);
        entriesWereReplaced();
    }
}

} // namespace quib
