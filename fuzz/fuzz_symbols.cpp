#include "bytes.h"
#include "views/symbols/symbollibrary.h"

/// Any name is a symbol that has something to draw, or is none.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const auto symbol = quib::findSymbol(Bytes(bytes, size).text());
    demand(!symbol || symbol->drawing != nullptr || !symbol->path.isEmpty());
    return 0;
}
