#pragma once

#include "platform/linux/base/gowned.h"

namespace quib {

/// The environment in which other programs start: the one that ours was started in, without what
/// was meant for ours alone.
GOwned<GAppLaunchContext> makeLaunchContext();

/// For a child between fork and exec: a session of its own, so that what ends ours leaves it
/// alone, and signals as a program expects to find them.
void standAlone(gpointer nothing);

} // namespace quib
