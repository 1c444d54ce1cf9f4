#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <csignal>

namespace quib {

/// While it lives, SIGTERM, SIGINT and SIGHUP end the event loop in order, and the loss of the X
/// server still announces QCoreApplication::aboutToQuit. One at a time.
class QuitSignals final : public QObject {
    Q_OBJECT

public:
    QuitSignals();
    ~QuitSignals() override;
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;

private:
    static constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

    std::array<int, 2> m_pipe;
    std::array<struct sigaction, Signals.size()> m_before{};
    QSocketNotifier m_notifier;
};

} // namespace quib
