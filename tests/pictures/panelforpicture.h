#pragma once

#include "app/appdelegate.h"
#include "app/offscreenpanel.h"
#include "pictures/day.h"
#include "support/fakes/fakeshell.h"
#include "support/fakes/handclock.h"

#include <optional>

/// The whole panel, drawn out of sight: the delegate among fakes, but for files and their icons,
/// which are the theme's. It finds its workspace on the disk, as the program does. Nothing moves.
class PanelForPicture {
public:
    /// Open on a tab, or collapsed.
    PanelForPicture(const Day& day, const QString& folder, std::optional<quib::Tab> tab);

    quib::NotchModel& model() { return m_delegate->model(); }
    void click(QPointF at);
    /// Clear around the shape, with all its icons; null when it does not come to rest.
    QImage picture();

private:
    void tell(const Day& day);
    QImage atRest();

    HandClock m_hands;
    FakeShell m_shell;
    std::unique_ptr<quib::AppDelegate> m_delegate;
    std::unique_ptr<quib::OffscreenPanel> m_panel;
};
