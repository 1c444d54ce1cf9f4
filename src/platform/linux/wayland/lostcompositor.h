#pragma once

#include <QObject>

struct wl_display;

namespace quib {

/// Announces the quit when the compositor has gone. Qt then ends the process at once, on whatever
/// thread has noticed and without a word to anyone but the console: that word is what this waits
/// for. One at a time.
class LostCompositor : public QObject {
    Q_OBJECT

public:
    /// Qt's connection, which is borrowed.
    LostCompositor(wl_display* display, QObject* parent);
    ~LostCompositor() override;
    LostCompositor(const LostCompositor&) = delete;
    LostCompositor& operator=(const LostCompositor&) = delete;

private:
    bool m_wereWarningsShown;
};

} // namespace quib
