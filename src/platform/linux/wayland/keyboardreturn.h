#pragma once

#include "platform/linux/wayland/layershell.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class QScreen;
class QWindow;
struct wl_callback;

namespace quib {

/// Brings the keyboard back to whoever had it before the panel, where the compositor leaves it with
/// a panel that was pressed or no longer wants it: KWin does, and knows no way to ask. A surface of
/// one point takes the keyboard and goes, and when a surface goes the one before is next.
class KeyboardReturn : public QObject {
    Q_OBJECT

public:
    /// The shell is borrowed and outlives this.
    explicit KeyboardReturn(const LayerShell& shell);
    ~KeyboardReturn() override;

    /// Where the panel still has it once the compositor has heard all that it was told. The panel
    /// is borrowed and may die first.
    void start(QWindow& panel);
    void cancel();
    /// From the start until the panel has lost it, or it is known to have done so.
    bool isUnderWay() const;

private:
    struct Listening;
    class Taker;

    void ask();
    void hear();
    void takeFromPanel();

    const LayerShell& m_shell;
    QPointer<QWindow> m_panel;
    wl_callback* m_answer = nullptr; ///< Present until the compositor has answered.
    int m_answers = 0;
    std::unique_ptr<Taker> m_taker;
    QTimer m_thenTake; ///< Due once Qt has passed on what it has heard.
    QTimer m_giveUp;
};

} // namespace quib
