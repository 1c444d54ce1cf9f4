#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdlib>

/// What the fuzzer gives, taken off from the front.
class Bytes {
public:
    Bytes(const char* bytes, std::size_t size)
        : m_bytes(bytes, static_cast<qsizetype>(size))
    {
    }

    bool isEmpty() const { return m_at >= m_bytes.size(); }

    unsigned char byte() { return isEmpty() ? 0 : static_cast<unsigned char>(m_bytes[m_at++]); }

    /// Up to the next byte of 0xff, which no UTF-8 has.
    QByteArray word()
    {
        const auto end = m_bytes.indexOf('\xff', m_at);
        const auto word = m_bytes.sliced(m_at, (end < 0 ? m_bytes.size() : end) - m_at);
        m_at = end < 0 ? m_bytes.size() : end + 1;
        return word;
    }

    QString text() { return QString::fromUtf8(word()); }

    QByteArray rest() const { return m_bytes.sliced(m_at); }

private:
    QByteArray m_bytes;
    qsizetype m_at = 0;
};

/// Tells the fuzzer of a finding.
inline void demand(bool isTrue)
{
    if (!isTrue) {
        std::abort();
    }
}

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size);
