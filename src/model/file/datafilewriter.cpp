#include "model/file/datafile.h"
#include "model/file/datamembers.h"
#include "model/texts/utf8.h"
#include "model/texts/uuidtext.h"
#include "model/time/isodate.h"

#include <rapidjson/prettywriter.h>

#include <array>
#include <charconv>
#include <cmath>

namespace quib {

namespace {

constexpr double FirstUnsureInteger = 9007199254740992; // 2^53
constexpr qsizetype BytesPerEntry = 256;
constexpr auto Piece = static_cast<std::size_t>(PieceOfBytes);

rapidjson::SizeType lengthOf(std::string_view text)
{
    return static_cast<rapidjson::SizeType>(text.size());
}

/// A whole number stands as an integer while each one has a double of its own; from there on only
/// with an exponent, since readers refuse integers of 2^64 and more. Returns the end.
char* writeNumber(std::array<char, 32>& out, double value)
{
    auto* const end = out.data() + out.size();
    if (std::abs(value) >= FirstUnsureInteger) {
        return std::to_chars(out.data(), end, value, std::chars_format::scientific).ptr;
    }
    const bool isWhole = std::trunc(value) == value;
    return isWhole ? std::to_chars(out.data(), end, static_cast<qint64>(value)).ptr
                   : std::to_chars(out.data(), end, value).ptr;
}

/// "/" stands only inside texts, where the file has it escaped.
QByteArray withEscapedSlashes(std::string_view json)
{
    QByteArray out;
    out.reserve(static_cast<qsizetype>(json.size()));
    for (auto slash = json.find('/'); slash != std::string_view::npos; slash = json.find('/')) {
        out.append(json.data(), static_cast<qsizetype>(slash)).append("\\/");
        json.remove_prefix(slash + 1);
    }
    return out.append(json.data(), static_cast<qsizetype>(json.size()));
}

/// Writes values one after the other. Once one could not be written the whole is worth nothing.
class Writer {
public:
    explicit Writer(const ByteSink& sink)
        : m_sink(sink)
        , m_buffer(nullptr, 2 * Piece)
        , m_json(m_buffer)
    {
        m_json.SetIndent(' ', 2);
    }

    /// False when something was not.
    bool isWritten() const { return m_whole; }

    template <typename T>
    void member(std::string_view key, const T& value)
    {
        m_json.Key(key.data(), lengthOf(key));
        put(value);
    }

    template <typename T>
    void member(std::string_view key, const std::optional<T>& value)
    {
        if (value) {
            member(key, *value);
        }
    }

    /// The last value: nothing is kept back any more.
    template <HasMembers Record>
    void writeWhole(const Record& record)
    {
        put(record);
        flush();
    }

private:
    template <HasMembers Record>
    void put(const Record& record)
    {
        m_json.StartObject();
        std::apply([&](const auto&... each) { (member(each.key, record.*each.value), ...); },
                   Members<Record>);
        m_json.EndObject();
    }

    void put(std::string_view text) { m_json.String(text.data(), lengthOf(text)); }
    void put(const QString& text);
    void put(bool value) { m_json.Bool(value); }
    void put(double value);
    void put(const QUuid& id);
    void put(const QDateTime& moment);
    void put(ClientStatus status) { put(rawText(status)); }
    void putNothing();
    void flush();

    template <typename Record>
    void put(const QList<Record>& records)
    {
        m_json.StartArray();
        for (const auto& record : records) {
            put(record);
            if (m_buffer.GetSize() >= Piece) {
                flush();
            }
        }
        m_json.EndArray();
    }

    const ByteSink& m_sink;
    rapidjson::StringBuffer m_buffer; ///< What the sink has not been given yet.
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_json;
    bool m_whole = true;
};

void Writer::put(const QString& text)
{
    const auto bytes = utf8Bytes(text);
    put(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void Writer::put(double value)
{
    if (!std::isfinite(value)) {
        putNothing();
        return;
    }
    if (value == 0 && std::signbit(value)) {
        m_json.RawValue("-0.0", 4, rapidjson::kNumberType);
        return;
    }
    std::array<char, 32> out{};
    const auto* const written = writeNumber(out, value);
    m_json.RawValue(out.data(), static_cast<std::size_t>(written - out.data()),
                    rapidjson::kNumberType);
}

void Writer::put(const QUuid& id)
{
    const auto text = uuidText(id);
    put(std::string_view(text.data(), text.size()));
}

void Writer::put(const QDateTime& moment)
{
    const auto text = isoDate(moment);
    if (!text) {
        putNothing();
        return;
    }
    put(std::string_view(text->data(), text->size()));
}

/// In place of a value that no file can hold; the writer underneath insists on one.
void Writer::putNothing()
{
    m_whole = false;
    m_json.Null();
}

void Writer::flush()
{
    m_whole = m_whole && m_sink(withEscapedSlashes({m_buffer.GetString(), m_buffer.GetSize()}));
    m_buffer.Clear();
}

} // namespace

bool writeQuibData(const QuibData& data, const ByteSink& sink)
{
    Writer writer(sink);
    writer.writeWhole(data);
    return writer.isWritten();
}

std::optional<QByteArray> encodeQuibData(const QuibData& data)
{
    QByteArray bytes;
    bytes.reserve((data.entries.size() + 1) * BytesPerEntry);
    const bool isWritten = writeQuibData(data, appendingTo(bytes));
    return isWritten ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace quib
