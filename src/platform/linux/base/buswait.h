#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace quib {

/// How long until a bus that is not there is asked for once more, after so many times in vain.
std::chrono::milliseconds pauseBeforeAttempt(int failures);

/// Tells when a bus that is not there is worth a try: when its socket appears, and, as long as
/// there is a socket or none can be seen, after pauses that grow. While the bus is there, and while
/// a socket that can be seen is missing, nothing runs.
class BusWait final : public QObject {
    Q_OBJECT

public:
    explicit BusWait(const QString& address);

    /// After an attempt in vain, and once the bus is lost.
    void again();
    void stop();

Q_SIGNALS:
    void isWorthATry();

private:
    bool isWatching() const;
    void watchFolder();
    void lookForSocket();
    QDateTime whenSocketCame() const;

    QString m_socket; ///< Its path; empty where it has none.
    std::unique_ptr<QFileSystemWatcher> m_folder; ///< Null while nobody waits.
    QDateTime m_lastSeen; ///< When the socket that was there last came.
    QTimer m_pause;
    int m_failures = 0;
};

} // namespace quib
