#include "model/datafile.h"

#include <cstdlib>

/// Bytes of any kind are read or refused, and what was read is the same after being written.
// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const auto data = quib::decodeQuibData(QByteArray(bytes, static_cast<qsizetype>(size)));
    if (!data) {
        return 0;
    }
    const auto written = quib::encodeQuibData(*data);
    if (!written || quib::decodeQuibData(*written) != data) {
        std::abort();
    }
    return 0;
}
