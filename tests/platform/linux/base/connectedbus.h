#pragma once

#include "platform/linux/base/sessionbus.h"

/// The session bus of the environment, or the one of that address, once it answers.
template <typename... Address>
std::shared_ptr<quib::SessionBus> connectedBus(const Address&... address)
{
    auto bus = std::make_shared<quib::SessionBus>(address...);
    bus->wait(std::chrono::seconds(10));
    return bus;
}
