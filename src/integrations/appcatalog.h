#pragma once

#include <QString>

#include <optional>

namespace quib {

/// The applications installed on this desktop. Implemented once per platform.
class AppCatalog {
public:
    AppCatalog() = default;
    virtual ~AppCatalog() = default;
    AppCatalog(const AppCatalog&) = delete;
    AppCatalog& operator=(const AppCatalog&) = delete;

    /// Full path of the visible application of exactly that unlocalised name; absent when there is
    /// none.
    virtual std::optional<QString> applicationNamed(const QString& name) const = 0;
};

} // namespace quib
