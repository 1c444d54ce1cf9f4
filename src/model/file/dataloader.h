#pragma once

#include "model/records/quibdata.h"

#include <QFutureWatcher>
#include <QObject>
#include <QSemaphore>

#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace quib {

/// Reads the workspace: on a thread of its own, beside what its owner does meanwhile, or where it
/// is wanted before that.
class DataLoader final : public QObject {
    Q_OBJECT

public:
    /// The function owns all that it uses, for it may outlive the loader.
    explicit DataLoader(std::function<QuibData()> read);
    /// Waits for the thread, but for no file that does not answer.
    ~DataLoader() override;
    DataLoader(const DataLoader&) = delete;
    DataLoader& operator=(const DataLoader&) = delete;

    /// Starts the thread, unless reading has begun.
    void begin();
    /// What was read, waiting for the end of it; absent when it has been taken.
    std::optional<QuibData> take();

Q_SIGNALS:
    /// By the thread; not once somebody has waited for it.
    void isRead();
    void wasTaken();

private:
    QuibData result();

    std::function<QuibData()> m_read; ///< Empty once reading has begun.
    QFutureWatcher<QuibData> m_watcher;
    std::thread m_thread; ///< From begin() until its result is taken.
    /// Released by the thread.
    std::shared_ptr<QSemaphore> m_ended = std::make_shared<QSemaphore>();
};

} // namespace quib
