#pragma once

#include <QObject>
#include <QUrl>

#include <optional>

namespace quib {

class Opener;

/// The only way to open web addresses, files, folders and applications. On the main thread; nothing
/// waits and nothing is reported.
class Actions : public QObject {
    Q_OBJECT

public:
    /// The opener is borrowed and outlives this.
    explicit Actions(Opener& opener);

    /// A path, with "~" for the home folder, or a web address, with or without its scheme.
    Q_INVOKABLE void open(const QString& target);
    /// What lies at a full path, whatever its name looks like.
    Q_INVOKABLE void openFile(const QString& path);
    /// The folder as a project in a code editor; in the file manager where none is installed.
    Q_INVOKABLE void openInEditor(const QString& path);
    /// Shows the thing selected in its folder.
    Q_INVOKABLE void reveal(const QString& path);

private:
    Opener& m_opener;
};

/// The full path that a target is, "~" being the home folder; empty where it is none.
QString pathOf(const QString& target, const QString& home);

/// A web address with its scheme, which most people leave out.
QString withScheme(const QString& address);

/// What a target means: the location of a file, or a web address. Absent when it can be neither.
std::optional<QUrl> locationOf(const QString& target, const QString& home);

} // namespace quib
