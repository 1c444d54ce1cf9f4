#pragma once

#include "platform/platform.h"

#include <QByteArray>

namespace quib {

/// What is known before there is an application object. What costs time is asked when it counts.
struct Surroundings {
    QByteArray asked; ///< QT_QPA_PLATFORM; empty where the user leaves the choice to us.
    bool isWaylandSession = false;
    std::function<bool()> hasLayerShell; ///< Whether its compositor lets panels be.
    std::function<bool()> hasXServer;
};

/// Of those that the user asks for, the first that serves and those that Qt may fall back on;
/// unasked, Wayland before X.
WindowSystem chooseWindowSystem(const Surroundings& surroundings);

Surroundings lookAround();

} // namespace quib
