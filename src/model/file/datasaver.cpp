#include "model/file/datasaver.h"

#include "model/file/atomicfile.h"
#include "model/file/datafile.h"
#include "model/file/datafolder.h"

#include <chrono>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto Debounce = 400ms;

bool write(const QuibData& data)
{
    const auto pieces = [&](const ByteSink& sink) { return writeQuibData(data, sink); };
    return replaceFile(dataFile(), pieces, NewFile::Private);
}

} // namespace

DataSaver::DataSaver(Scheduler schedule, std::function<void()> enterBackground)
    : m_schedule(std::move(schedule))
    , m_writing(std::move(enterBackground))
{
}

void DataSaver::scheduleSave(const QuibData& data)
{
    ++m_wanted;
    m_pending = m_schedule(Debounce, [this, data] { startWriting(data); });
}

void DataSaver::saveNow(const QuibData& data)
{
    m_pending.reset();
    m_writing.finish();
    if (m_saved != m_wanted && write(data)) {
        m_saved = m_wanted;
    }
}

void DataSaver::startWriting(const QuibData& data)
{
    m_writing.start([this, data, revision = m_wanted] {
        if (write(data)) {
            m_saved = revision;
        }
    });
    m_pending.reset(); // Lets go of the copy, which would make the next change of a list slow.
}

} // namespace quib
