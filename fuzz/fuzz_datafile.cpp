#include "bytes.h"
#include "model/file/datafile.h"
#include "model/json/json.h"

/// Bytes of any kind are read or refused; what was read is JSON to its last byte, and the same
/// after being written.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const auto file = Bytes(bytes, size).rest();
    const auto data = quib::decodeQuibData(file);
    if (data) {
        simdjson::dom::parser parser;
        const auto written = quib::encodeQuibData(*data);
        demand(!quib::parseJson(parser, file).error());
        demand(written && quib::decodeQuibData(*written) == data);
    }
    return 0;
}
