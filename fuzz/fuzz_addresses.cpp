#include "bytes.h"
#include "integrations/opening/actions.h"
#include "model/texts/fileaddress.h"
#include "model/texts/nativepath.h"

/// A target is a full path, an address with its scheme, or nothing.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    Bytes given(bytes, size);
    const auto target = given.text();
    const auto home = QStringLiteral("/home/ada");

    const auto path = quib::pathOf(target, home);
    demand(path.isEmpty() || (path.startsWith(u'/') && !path.contains(QChar::Null)));
    const auto location = quib::locationOf(target, home);
    if (location) {
        demand(location->isValid() && !location->scheme().isEmpty());
        demand(!location->isLocalFile() || location->toLocalFile().startsWith(u'/'));
    }
    demand(path.isEmpty() || (location && location->isLocalFile()));

    const auto dropped = quib::pathOfFile(QUrl::fromEncoded(given.word()));
    demand(dropped.isEmpty() || dropped.startsWith(u'/'));
    demand(dropped.isEmpty() || quib::nativePath(dropped).is_absolute());
    return 0;
}
