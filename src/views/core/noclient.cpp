#include "views/core/noclient.h"

#include <QMetaType>

namespace quib {

void teachNoClient()
{
    QMetaType::registerConverter<QUuid, std::optional<QUuid>>(clientOrNone);
}

} // namespace quib
