#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace quib {

/// A lock in the user's folder for run-time files, and a socket beside it through which a later
/// start knocks. The kernel gives the lock back when its process ends in any way.
class InstanceLock final : public QObject {
    Q_OBJECT

public:
    explicit InstanceLock(const QString& name);
    ~InstanceLock() override;
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// True where nobody else has it, also where no folder can hold a lock.
    bool claim();
    /// False also where no folder can hold a lock.
    bool isHeld() const { return m_isHeld; }
    enum class Knock : char {
        Open, ///< A later start wants the panel.
        Desktop, ///< The bus has started a program, and delivers a call once somebody answers to
                 ///< the desktop's name.
    };

    /// To the process that has the lock. Waits a moment for one that has only just taken it, never
    /// for one that hangs.
    void knock(Knock knock) const;

Q_SIGNALS:
    void knocked(quib::InstanceLock::Knock knock);

private:
    void listen();
    void readKnocks();
    QByteArray path(const char* suffix) const;

    QByteArray m_folder; ///< Empty where there is none that is safe.
    QByteArray m_name;
    int m_lock = -1;
    bool m_isHeld = false;
    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quib
