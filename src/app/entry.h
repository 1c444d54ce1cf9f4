#pragma once

namespace quib {

/// The whole program, from its arguments to its exit status.
int runQuib(int argc, char** argv);

} // namespace quib
