#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace quib {

/// The text as UTF-8. Half a surrogate pair, which no file may hold, becomes U+FFFD.
QByteArray utf8Bytes(const QString& text);

/// The text of valid UTF-8, kept whole: also a U+FEFF at its start, which Qt takes for a byte
/// order mark.
QString utf8Text(std::string_view bytes);

} // namespace quib
