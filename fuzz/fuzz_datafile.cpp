#include "model/file/datafile.h"
#include "model/json/json.h"

#include <cstdlib>

/// Bytes of any kind are read or refused; what was read is JSON to its last byte, and the same
/// after being written.
// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const QByteArray file(bytes, static_cast<qsizetype>(size));
    const auto data = quib::decodeQuibData(file);
    if (!data) {
        return 0;
    }
    simdjson::dom::parser parser;
    const auto written = quib::encodeQuibData(*data);
    if (quib::parseJson(parser, file).error() || !written
        || quib::decodeQuibData(*written) != data) {
        std::abort();
    }
    return 0;
}
