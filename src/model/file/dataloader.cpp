#include "model/file/dataloader.h"

#include <QPromise>

#include <chrono>
#include <system_error>
#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr std::chrono::milliseconds PatienceAtTheEnd = 1s;

} // namespace

DataLoader::DataLoader(std::function<QuibData()> read)
    : m_read(std::move(read))
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &DataLoader::isRead);
}

DataLoader::~DataLoader()
{
    if (!m_thread.joinable()) {
        return;
    }
    if (m_ended->tryAcquire(1, int(PatienceAtTheEnd.count()))) {
        m_thread.join();
    } else {
        m_thread.detach(); // The program ends without it.
    }
}

void DataLoader::begin()
{
    if (!m_read) {
        return;
    }
    QPromise<QuibData> promise;
    promise.start(); // Who waits for one that has not begun is given nothing.
    const auto reading = promise.future();
    try {
        m_thread
            = std::thread([read = m_read, ended = m_ended, promise = std::move(promise)]() mutable {
                  promise.addResult(read());
                  promise.finish();
                  ended->release();
              });
    } catch (const std::system_error&) {
        return; // Where no thread is to be had, reading begins when it is waited for.
    }
    m_read = nullptr;
    m_watcher.setFuture(reading);
}

std::optional<QuibData> DataLoader::take()
{
    if (!m_read && !m_thread.joinable()) {
        return std::nullopt;
    }
    Q_EMIT wasTaken();
    return result();
}

QuibData DataLoader::result()
{
    if (const auto read = std::exchange(m_read, nullptr)) {
        return read();
    }
    auto reading = m_watcher.future();
    m_watcher.setFuture({}); // It would hold what was read.
    auto data = reading.takeResult();
    m_thread.join();
    return data;
}

} // namespace quib
