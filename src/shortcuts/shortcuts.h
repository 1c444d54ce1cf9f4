#pragma once

#include "shortcuts/shortcutconfig.h"

#include <QObject>

#include <filesystem>
#include <functional>

namespace quib {

/// The buttons that the user keeps in shortcuts.json, in the data folder. On the main thread; the
/// file is read only when asked.
class Shortcuts : public QObject {
    Q_OBJECT

public:
    Shortcuts() = default;

    /// The one of the process, made when first asked for.
    static Shortcuts& shared();
    static std::filesystem::path file();

    /// The last buttons that worked; empty before the first reload.
    const QList<ShortcutGroup>& groups() const { return m_groups; }
    /// What to tell the user of the file; absent while it works.
    const std::optional<QString>& problem() const { return m_problem; }

    /// Reads the file anew, written first where there is none.
    Q_INVOKABLE void reload();
    /// Reloads the shared ones, so that there is a file, and has it opened.
    static void
    edit(const std::function<void(const std::filesystem::path& file)>& openInTextEditor);

Q_SIGNALS:
    void groupsChanged();
    void problemChanged();

private:
    void setGroups(const QList<ShortcutGroup>& groups);
    void setProblem(const std::optional<QString>& problem);

    QList<ShortcutGroup> m_groups;
    std::optional<QString> m_problem;
};

} // namespace quib
