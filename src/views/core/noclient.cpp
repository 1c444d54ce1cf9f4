#include "views/core/noclient.h"

#include <QMetaType>

namespace quib {

void teachNoClient()
{
    if (!QMetaType::hasRegisteredConverterFunction<QUuid, std::optional<QUuid>>()) {
        QMetaType::registerConverter<QUuid, std::optional<QUuid>>(clientOrNone);
    }
}

} // namespace quib
