#pragma once

#include <QString>

#include <optional>

namespace quib {

/// What the user decided about the calendars where the desktop has no store for it: a file of one
/// word, "yes" or "no". Without the file, or with another word in it, nothing was decided.

QString consentFile();
std::optional<bool> readConsent();
void writeConsent(bool isGranted);

} // namespace quib
