#pragma once

#include "model/records/quibdata.h"
#include "model/texts/bytesink.h"

#include <QByteArray>

#include <filesystem>
#include <optional>

namespace quib {

/// Writes the bytes of the data file: JSON with sorted keys and a member a line, the same bytes for
/// the same data. False when a rate is not finite, a date is outside the years 0 to 9999 or the
/// sink took not all: what was written is worth nothing then.
bool writeQuibData(const QuibData& data, const ByteSink& sink);

/// The same bytes as a whole; absent instead of false.
std::optional<QByteArray> encodeQuibData(const QuibData& data);

/// The workspace that the bytes of a data file stand for. Strict: one missing member, wrong type,
/// malformed id, date or status makes the whole file unreadable. Of repeated keys the first counts.
std::optional<QuibData> decodeQuibData(const QByteArray& bytes);

/// The same of a file; absent too when it can't be read, or is larger than any workspace.
std::optional<QuibData> loadQuibData(const std::filesystem::path& path);

} // namespace quib
