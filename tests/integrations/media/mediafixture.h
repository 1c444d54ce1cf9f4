#pragma once

#include "integrations/media/mediacontroller.h"
#include "support/fakes/fakeplayerlink.h"
#include "support/fakes/handclock.h"

/// A controller whose players answer, and whose time passes, when the test says so.
struct MediaFixture {
    FakePlayerLink link;
    HandClock time;
    quib::MediaController media{link, time.scheduler()};

    /// Polls once, and has it answered.
    void poll(const QString& reply)
    {
        media.refresh();
        link.answer(reply);
        link.asked.clear();
    }
};
