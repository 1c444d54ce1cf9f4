#include "shortcuts/shortcuts.h"

#include "model/file/atomicfile.h"
#include "model/file/datafolder.h"
#include "model/file/wholefile.h"
#include "shortcuts/startertext.h"

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto LargestFile = qsizetype(16) * 1024 * 1024; // No hand writes as much.

const auto Problem = u"shortcuts.json has a typo, so these are the last working buttons. Check for "
                     "a missing comma or quote."_s;

bool isThere(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

std::optional<ShortcutConfig> load(const std::filesystem::path& path)
{
    const auto bytes = wholeFile(path, LargestFile);
    return bytes ? decodeShortcuts(*bytes) : std::nullopt;
}

} // namespace

Shortcuts& Shortcuts::shared()
{
    static Shortcuts shortcuts;
    return shortcuts;
}

std::filesystem::path Shortcuts::file()
{
    return dataFolder() / "shortcuts.json";
}

void Shortcuts::reload()
{
    const auto path = file();
    if (!isThere(path)) {
        replaceFile(path, starterShortcuts(), NewFile::Private);
    }
    if (const auto config = load(path)) {
        setGroups(config->groups);
        setProblem(std::nullopt);
        return;
    }
    if (m_groups.isEmpty()) {
        setGroups(decodeShortcuts(starterShortcuts()).value_or(ShortcutConfig()).groups);
    }
    setProblem(Problem);
}

void Shortcuts::edit(const std::function<void(const std::filesystem::path& file)>& openInTextEditor)
{
    shared().reload();
    std::error_code error;
    openInTextEditor(std::filesystem::absolute(file(), error));
}

void Shortcuts::setGroups(const QList<ShortcutGroup>& groups)
{
    if (m_groups != groups) {
        m_groups = groups;
        Q_EMIT groupsChanged();
    }
}

void Shortcuts::setProblem(const std::optional<QString>& problem)
{
    if (m_problem != problem) {
        m_problem = problem;
        Q_EMIT problemChanged();
    }
}

} // namespace quib
