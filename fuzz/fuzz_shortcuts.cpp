#include "bytes.h"
#include "model/json/json.h"
#include "shortcuts/shortcutconfig.h"

/// Bytes of any kind are buttons or a mistake; buttons come of JSON that is valid to its last byte,
/// and of the same bytes come the same buttons.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const auto file = Bytes(bytes, size).rest();
    const auto config = quib::decodeShortcuts(file);
    if (config) {
        simdjson::dom::parser parser;
        demand(!quib::parseJson(parser, file).error());
        demand(quib::decodeShortcuts(file)->groups == config->groups);
    }
    return 0;
}
