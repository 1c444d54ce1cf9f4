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

/// Some schemes name no host, as in "trash:///"; the web without one leads nowhere, and a file on
/// another host can't be reached by its path.
bool leadsSomewhere(const QUrl& url)
{
    if (!url.isValid() || url.scheme().isEmpty()) {
        return false;
    }
    if (url.isLocalFile()) {
        return url.host().isEmpty() && !url.path().isEmpty();
    }
    const bool isWeb = url.scheme() == u"http"_s || url.scheme() == u"https"_s;
    return !isWeb || !url.host().isEmpty();
}

/// "file://localhost/" is the long way to write "file:///".
QUrl withoutOwnHost(QUrl url)
{
    if (url.isLocalFile() && url.host() == u"localhost"_s) {
        url.setHost({});
    }
    return url;
}

} // namespace

std::optional<QUrl> locationOf(const QString& target, const QString& home)
{
    const auto text = withTildeExpanded(target, home);
    if (text.startsWith(u'/')) {
        return QUrl::fromLocalFile(text);
    }
    const auto address = text.contains(u"://"_s) ? text : u"https://"_s + text;
    const auto url = withoutOwnHost(QUrl(address, QUrl::StrictMode));
    return leadsSomewhere(url) ? std::optional(url) : std::nullopt;
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
    if (path.isEmpty()) {
        return;
    }
    const auto folder = QFileInfo(path).absoluteFilePath();
    if (const auto editor = installedEditor(m_catalog)) {
        m_opener.openWith(folder, *editor);
    } else {
        m_opener.openPath(folder);
    }
}

void Actions::reveal(const QString& path)
{
    if (!path.isEmpty()) {
        m_opener.reveal(QFileInfo(path).absoluteFilePath());
    }
}

} // namespace quib
