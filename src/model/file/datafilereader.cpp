#include "model/file/datafile.h"
#include "model/file/datamembers.h"
#include "model/file/wholefile.h"
#include "model/json/jsonrecord.h"

#include <new>

namespace quib {

namespace {

constexpr auto LargestFile = qsizetype(512) * 1024 * 1024; // Two million entries.

} // namespace

static bool readValue(simdjson::ondemand::value value, ClientStatus& out)
{
    QString text;
    return readValue(value, text) && take(clientStatus(text), out);
}

std::optional<QuibData> decodeQuibData(const QByteArray& bytes)
{
    return decodeRecord<QuibData>(bytes);
}

std::optional<QuibData> loadQuibData(const std::filesystem::path& path)
{
    try {
        const auto bytes = wholeFile(path, LargestFile);
        return bytes ? decodeQuibData(*bytes) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt; // Less memory is to be had than the file needs.
    }
}

} // namespace quib
