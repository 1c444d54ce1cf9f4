#pragma once

#include "model/records/clientstatus.h"

#include <QString>
#include <QUuid>

namespace quib {

/// A customer of the studio. A plain value: copied, compared field by field, never observed.
struct Client {
    QUuid id;
    QString name;
    ClientStatus status = ClientStatus::Lead;
    QString siteURL; ///< As typed: may be empty, may lack a scheme.
    QString folderPath; ///< Absolute path of the project folder; may be empty.
    double hourlyRate = 0; ///< In the user's currency.
    QString notes;

    bool operator==(const Client&) const = default;
};

} // namespace quib
