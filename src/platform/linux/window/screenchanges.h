#pragma once

#include <functional>

class QObject;

namespace quib {

/// Calls whenever one of Qt's screens comes, goes or changes, for as long as the context lives. A
/// rearrangement is many calls.
void followScreens(QObject& context, const std::function<void()>& changed);

} // namespace quib
