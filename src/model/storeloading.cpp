#include "model/file/datafile.h"
#include "model/file/datafolder.h"
#include "model/sampledata.h"
#include "model/store.h"

#include <utility>

// The store's workspace, read from its file while the program starts.

namespace quib {

namespace {

/// What the thread that loads is to do. It shares nothing with the store.
std::function<QuibData()> loading(const StoreSurroundings& surroundings)
{
    return [file = dataFile(), now = surroundings.clock(),
            findApplication = surroundings.findApplication] {
        auto loaded = loadQuibData(file);
        return loaded ? *std::move(loaded) : sampleData(now, findApplication);
    };
}

} // namespace

Store::Store(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
    , m_saver(m_surroundings.schedule, m_surroundings.enterBackground)
    , m_loader(loading(m_surroundings))
{
    connect(&m_loader, &DataLoader::isRead, this, &Store::awaitData);
    connect(&m_loader, &DataLoader::wasTaken, this, &Store::tellOfTimer, Qt::QueuedConnection);
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

/// Who asked before was told that none runs.
void Store::tellOfTimer()
{
    if (hasRunningEntry()) {
        Q_EMIT entriesChanged();
    }
}

void Store::awaitData() const
{
    if (auto loaded = m_loader.take()) {
        m_data = *std::move(loaded);
        entriesWereReplaced();
    }
}

} // namespace quib
