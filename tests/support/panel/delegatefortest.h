#pragma once

#include "app/appdelegate.h"
#include "app/panelengine.h"
#include "support/datafolderfortest.h"
#include "support/fakes/fakeshell.h"
#include "support/fakes/handclock.h"

#include <utility>

/// The delegate among fakes, its panel not made yet; the time is the test's to turn.
struct DelegateForTest {
    DataFolderForTest folder;
    HandClock hands;
    FakeShell shell;
    quib::AppDelegate delegate{std::move(shell.platform), hands.clock(), hands.scheduler()};

    bool isLaunched = false;

    DelegateForTest() { delegate.life().layout(); }

    /// Launches it, once, and forgets what was asked of the panel's host.
    quib::AppDelegate& launched()
    {
        if (!std::exchange(isLaunched, true)) {
            delegate.applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());
            delegate.applicationDidShow();
        }
        shell.asked.clear();
        return delegate;
    }
};
