#pragma once

#include "model/records/quibdata.h"

#include <functional>

namespace quib {

/// Full path of the installed application of that name, or absent.
using ApplicationFinder = std::function<std::optional<QString>(const QString& name)>;

/// What a first start shows, so that every tab has something to try. Only installed applications
/// get a button; a bundle in the folder of applications counts before what the finder knows.
QuibData sampleData(const QDateTime& now, const ApplicationFinder& findApplication,
                    const QString& bundles = QStringLiteral("/Applications"));

} // namespace quib
