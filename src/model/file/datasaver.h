#pragma once

#include "model/file/newesttask.h"
#include "model/records/quibdata.h"
#include "model/time/scheduler.h"

#include <atomic>
#include <functional>

namespace quib {

/// Writes the workspace to its file: in the background, 0.4 s after the last change, or at once.
/// Says nothing of a failure, but keeps it in mind: the next change and saveNow() try again.
class DataSaver {
public:
    /// The thread that writes in the background does the second first.
    DataSaver(Scheduler schedule, std::function<void()> enterBackground);

    /// Has this data written unless newer data comes first.
    void scheduleSave(const QuibData& data);

    /// Writes this data unless it is on disk already; until then nothing on disk is touched.
    void saveNow(const QuibData& data);

private:
    /// Counts what was to be saved, so that a save can tell whether it was the last one.
    using Revision = quint64;

    void startWriting(const QuibData& data);

    Scheduler m_schedule;
    std::unique_ptr<QObject> m_pending;
    Revision m_wanted = 0;
    std::atomic<Revision> m_saved = 0; ///< Set by whichever thread has written.
    NewestTask m_writing; ///< Last: waits when it goes.
};

} // namespace quib
