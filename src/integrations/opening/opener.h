#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <filesystem>

namespace quib {

/// Hands things to the programs of the desktop. Implemented once per platform. Every call is on the
/// main thread and returns at once; what can't be opened is passed over in silence. Names reach the
/// programs as they stand and never pass through a shell. Paths are absolute.
class Opener {
public:
    Opener() = default;
    virtual ~Opener() = default;
    Opener(const Opener&) = delete;
    Opener& operator=(const Opener&) = delete;

    /// A folder in the file manager, a document in its default application; an application is
    /// launched.
    virtual void openPath(const std::filesystem::path& path) = 0;
    /// In the default application of its scheme.
    virtual void openAddress(const QUrl& address) = 0;
    /// With the first candidate that is installed; as openPath() where none is. A candidate is a
    /// desktop entry's file name, the full path of a bundle or of a program, or a command.
    virtual void openWithFirst(const QString& path, const QStringList& candidates) = 0;
    /// In the editor for plain text, whatever the file's own type is.
    virtual void openInTextEditor(const std::filesystem::path& path) = 0;
    /// Shows the thing itself, selected in the folder that holds it.
    virtual void reveal(const QString& path) = 0;
};

} // namespace quib
