#pragma once

#include <QString>

namespace quib {

/// Where a program or module of ours lies that is no part of this program's file: beside it in the
/// build, else in the folder that installing keeps for them. Not looked at any further: it may be
/// missing.
QString companion(const QString& fileName);

} // namespace quib
