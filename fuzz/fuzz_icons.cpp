#include "bytes.h"
#include "platform/linux/icons/iconfile.h"

#include <QGuiApplication>

/// A picture of any bytes is drawn into its square, or is none.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    static const bool hasPlatform = qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const auto* const application
        = new QGuiApplication(count, arguments); // Texts in drawings take a font.
    demand(hasPlatform && application != nullptr);

    const auto picture = quib::decodeIcon(Bytes(bytes, size).rest(), 32);
    demand(picture.isNull() || picture.size() == QSize(32, 32));
    return 0;
}
