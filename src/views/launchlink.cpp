#include "views/launchlink.h"

#include "integrations/actions.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// QUrl's own host is in small letters.
QString hostAsTyped(const QString& address)
{
    const auto afterScheme = address.mid(address.indexOf("://"_L1) + 3);
    const auto end = std::ranges::find_if(
        afterScheme, [](QChar c) { return c == u'/' || c == u'?' || c == u'#'; });
    const auto authority = afterScheme.left(end - afterScheme.begin());
    const auto place = authority.mid(authority.lastIndexOf(u'@') + 1);
    if (place.startsWith(u'[')) {
        return place.mid(1, place.indexOf(u']') - 1);
    }
    return place.left(place.indexOf(u':'));
}

} // namespace

QString linkName(const QString& typedName, const QString& address)
{
    if (!typedName.isEmpty()) {
        return typedName;
    }
    const auto full = address.contains("://"_L1) ? address : u"https://"_s + address;
    const QUrl url(full, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() ? hostAsTyped(full) : address;
}

QString launchPath(const QString& target, const QString& home)
{
    const auto location = target.startsWith(u'/') || target.startsWith(u'~')
        ? locationOf(target, home)
        : std::nullopt;
    return location && location->isLocalFile() ? location->toLocalFile() : QString();
}

} // namespace quib
