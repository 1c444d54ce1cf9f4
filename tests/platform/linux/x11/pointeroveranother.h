#pragma once

#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/xcbpointersource.h"

#include <QSignalSpy>
#include <QTest>

namespace quib {

/// The pointer over another program, whose last press the source has told of. No button is left
/// held.
struct PointerOverAnother {
    OtherProgram other{QRect(0, 0, 1600, 900)};
    XcbPointerSource pointer;

    PointerOverAnother()
    {
        other.show();
        QSignalSpy clicks(&pointer, &PointerSource::clicked);
        click({400, 300});
        const auto latest = other.timeOfLastPress();
        QTRY_VERIFY(!clicks.isEmpty() && clicks.last().first().toUInt() == latest);
    }
    ~PointerOverAnother() { xdotool({QStringLiteral("mouseup"), QStringLiteral("1")}); }
    Q_DISABLE_COPY_MOVE(PointerOverAnother)
};

} // namespace quib
