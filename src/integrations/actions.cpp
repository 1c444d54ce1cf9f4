#include "integrations/actions.h"

#include "integrations/appcatalog.h"
#include "integrations/opener.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// A code editor and the ways in which it may be installed.
struct Editor {
    QString bundle;
    QStringList desktopEntries; ///< Of the packagers that there are, the editor's own first.
    QString command;
};

const std::array<Editor, 2>& editors()
{
    static const std::array<Editor, 2> inOrderOfPreference{
        {{u"/Applications/Visual Studio Code.app"_s,
          {u"code.desktop"_s, u"code_code.desktop"_s, u"com.visualstudio.code.desktop"_s,
           u"code-oss.desktop"_s, u"visual-studio-code.desktop"_s, u"codium.desktop"_s,
           u"codium_codium.desktop"_s, u"com.vscodium.codium.desktop"_s},
          u"code"_s},
         {u"/Applications/Cursor.app"_s,
          {u"cursor.desktop"_s, u"co.anysphere.cursor.desktop"_s},
          u"cursor"_s}}};
    return inOrderOfPreference;
}

std::optional<QString> installedEditor(const AppCatalog& catalog)
{
    for (const auto& editor : editors()) {
        if (const auto found
            = catalog.firstInstalled(QStringList(editor.bundle) + editor.desktopEntries)) {
            return found;
        }
    }
    for (const auto& editor : editors()) {
        const auto command = QStandardPaths::findExecutable(editor.command);
        if (!command.isEmpty()) {
            return command;
        }
    }
    return std::nullopt;
}

/// "~" and "~/..." only: whose home "~name" is, only the system of accounts knows.
QString withTildeExpanded(const QString& text, const QString& home)
{
    const bool isHome = text == u"~"_s || text.startsWith(u"~/"_s);
    return isHome ? home + text.mid(1) : text;
}

} // namespace

std::optional<QUrl> locationOf(const QString& target, const QString& home)
{
    const auto text = withTildeExpanded(target, home);
    if (text.startsWith(u'/')) {
        return QUrl::fromLocalFile(text);
    }
    const auto address = text.contains(u"://"_s) ? text : u"https://"_s + text;
    QUrl url(address, QUrl::StrictMode);
    // A file's address has no host; any other without one leads nowhere.
    const bool leadsSomewhere = url.isValid() && (url.isLocalFile() || !url.host().isEmpty());
    return leadsSomewhere ? std::optional(url) : std::nullopt;
}

Actions::Actions(Opener& opener, const AppCatalog& catalog)
    : m_opener(opener)
    , m_catalog(catalog)
{
}

void Actions::open(const QString& target)
{
    const auto location = locationOf(target, QDir::homePath());
    if (!location) {
        return;
    }
    if (location->isLocalFile()) {
        m_opener.openPath(location->toLocalFile());
    } else {
        m_opener.openAddress(*location);
    }
}

void Actions::openInEditor(const QString& path)
{
    const auto folder = QFileInfo(path).absoluteFilePath();
    if (const auto editor = installedEditor(m_catalog)) {
        m_opener.openWith(folder, *editor);
    } else {
        m_opener.openPath(folder);
    }
}

void Actions::reveal(const QString& path)
{
    m_opener.reveal(QFileInfo(path).absoluteFilePath());
}

} // namespace quib
