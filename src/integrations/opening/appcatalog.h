#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quib {

/// An installed application that the user may see.
struct Application {
    QString path; ///< Full path of the bundle or of the desktop entry.
    QString name; ///< In the user's language.
    QString icon; ///< A name in the icon theme, or the full path of a picture; empty without one.
};

/// The applications installed on this desktop. Implemented once per platform.
class AppCatalog {
public:
    AppCatalog() = default;
    virtual ~AppCatalog() = default;
    AppCatalog(const AppCatalog&) = delete;
    AppCatalog& operator=(const AppCatalog&) = delete;

    /// Full path of the visible application of exactly that unlocalised name; absent when there is
    /// none. Asked on another thread, by one thread at a time.
    virtual std::optional<QString> applicationNamed(const QString& name) const = 0;
    /// What the application at a full path is called, in the user's language; its file's name where
    /// the file does not tell.
    virtual QString nameOf(const QString& path) const = 0;
    /// The visible ones, by name as the user's language sorts. Read anew each time.
    virtual QList<Application> applications() const = 0;
};

} // namespace quib
