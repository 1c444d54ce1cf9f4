#include "model/texts/beginning.h"

namespace quib {

QString beginningOf(const QString& text, qsizetype mostUnits)
{
    if (text.size() <= mostUnits) {
        return text;
    }
    const bool splits = text.at(mostUnits - 1).isHighSurrogate();
    return text.first(splits ? mostUnits - 1 : mostUnits);
}

} // namespace quib
