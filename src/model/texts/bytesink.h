#pragma once

#include <QByteArray>

#include <functional>

namespace quib {

/// Takes the next bytes of what is written piece by piece; false when it has no use for more.
using ByteSink = std::function<bool(QByteArrayView bytes)>;

/// As much as is worth a call of the system, and stays in the processor's cache until then.
constexpr qsizetype PieceOfBytes = 65'536;

/// Keeps all of it, behind what is there. Borrowed.
inline ByteSink appendingTo(QByteArray& bytes)
{
    return [&bytes](QByteArrayView piece) {
        bytes.append(piece);
        return true;
    };
}

} // namespace quib
