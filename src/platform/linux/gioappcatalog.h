#pragma once

#include "integrations/appcatalog.h"

#include <QHash>

namespace quib {

/// The desktop entries that GIO finds, listed once, when first asked.
class GioAppCatalog final : public AppCatalog {
public:
    std::optional<QString> applicationNamed(const QString& name) const override;

private:
    mutable std::optional<QHash<QString, QString>> m_pathOfName;
};

} // namespace quib
