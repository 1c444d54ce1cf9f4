#include "integrations/opening/actions.h"

#include "integrations/opening/opener.h"
#include "model/texts/nativepath.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// Code editors, in order of preference, as their packagers name them, each one's own first.
/// Commands come last: of them it is least known whose they are.
const QStringList& editors()
{
    static const QStringList inOrderOfPreference{u"/Applications/Visual Studio Code.app"_s,
                                                 u"code.desktop"_s,
                                                 u"code_code.desktop"_s,
                                                 u"com.visualstudio.code.desktop"_s,
                                                 u"code-oss.desktop"_s,
                                                 u"visual-studio-code.desktop"_s,
                                                 u"codium.desktop"_s,
                                                 u"codium_codium.desktop"_s,
                                                 u"com.vscodium.codium.desktop"_s,
                                                 u"/Applications/Cursor.app"_s,
                                                 u"cursor.desktop"_s,
                                                 u"co.anysphere.cursor.desktop"_s,
                                                 u"code"_s,
                                                 u"cursor"_s};
    return inOrderOfPreference;
}

/// Systems end a path at a NUL, and would open what stands before it.
bool isPath(const QString& path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

/// "~" and "~/..." only: whose home "~name" is, only the system of accounts knows.
QString withTildeExpanded(const QString& text, const QString& home)
{
    const bool isHome = text == u"~"_s || text.startsWith(u"~/"_s);
    return isHome ? home + text.mid(1) : text;
}

/// What follows two slashes would be a host in an address.
QString withOneRoot(const QString& path)
{
    qsizetype slashes = 0;
    while (slashes < path.size() && path.at(slashes) == u'/') {
        ++slashes;
    }
    return path.sliced(slashes - 1);
}

/// Some schemes name no host, as in "trash:///"; the web without one leads nowhere, and a file on
/// another host can't be reached by its path, one without a root not by any.
bool leadsSomewhere(const QUrl& url)
{
    if (!url.isValid() || url.scheme().isEmpty()) {
        return false;
    }
    if (url.isLocalFile()) {
        const auto path = url.toLocalFile();
        return url.host().isEmpty() && path.startsWith(u'/') && isPath(path);
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

QString pathOf(const QString& target, const QString& home)
{
    const auto text = withTildeExpanded(target, home);
    return text.startsWith(u'/') && isPath(text) ? withOneRoot(text) : QString();
}

QString withScheme(const QString& address)
{
    return address.contains(u"://"_s) ? address : u"https://"_s + address;
}

std::optional<QUrl> locationOf(const QString& target, const QString& home)
{
    if (!isPath(target)) {
        return std::nullopt;
    }
    if (const auto path = pathOf(target, home); !path.isEmpty()) {
        return QUrl::fromLocalFile(path);
    }
    const auto url = withoutOwnHost(QUrl(withScheme(target), QUrl::StrictMode));
    return leadsSomewhere(url) ? std::optional(url) : std::nullopt;
}

Actions::Actions(Opener& opener)
    : m_opener(opener)
{
}

void Actions::open(const QString& target)
{
    const auto location = locationOf(target, QDir::homePath());
    if (!location) {
        return;
    }
    if (location->isLocalFile()) {
        m_opener.openPath(nativePath(location->toLocalFile()));
    } else {
        m_opener.openAddress(*location);
    }
}

void Actions::openFile(const QString& path)
{
    if (isPath(path) && path.startsWith(u'/')) {
        m_opener.openPath(nativePath(path));
    }
}

void Actions::openInEditor(const QString& path)
{
    if (isPath(path)) {
        m_opener.openWithFirst(QFileInfo(path).absoluteFilePath(), editors());
    }
}

void Actions::reveal(const QString& path)
{
    if (isPath(path)) {
        m_opener.reveal(QFileInfo(path).absoluteFilePath());
    }
}

} // namespace quib
