#pragma once

#include "support/writefile.h"

#include <QByteArray>
#include <QDataStream>

inline QByteArray riffChunk(const QByteArray& name, const QByteArray& bytes)
{
    QByteArray size;
    QDataStream out(&size, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(bytes.size());
    return name + size + bytes + QByteArray(bytes.size() % 2, '\0');
}

/// One byte for each sample, of one channel.
inline QByteArray soundFormat(quint32 samplesPerSecond)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(1) << quint16(1) << samplesPerSecond << samplesPerSecond << quint16(1)
        << quint16(8);
    return bytes;
}

/// Two minutes of silence.
inline void writeSound(const QString& path, const QByteArray& title, const QByteArray& artist)
{
    constexpr int SamplesPerSecond = 8000;
    const auto tags = "INFO" + riffChunk("INAM", title) + riffChunk("IART", artist);
    const QByteArray sound(120 * SamplesPerSecond, '\x80');
    writeFile(path,
              riffChunk("RIFF",
                        "WAVE" + riffChunk("fmt ", soundFormat(SamplesPerSecond))
                            + riffChunk("LIST", tags) + riffChunk("data", sound)));
}
