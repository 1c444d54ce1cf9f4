#pragma once

#include "integrations/opening/appcatalog.h"

#include <QHash>

namespace quib {

/// The desktop entries that GIO finds. Names are listed once, when first asked for.
class GioAppCatalog final : public AppCatalog {
public:
    std::optional<QString> applicationNamed(const QString& name) const override;
    QString nameOf(const QString& path) const override;
    QList<Application> applications() const override;

private:
    mutable std::optional<QHash<QString, QString>> m_pathOfName;
};

} // namespace quib
