#include "views/tabs/home/launchlink.h"

#include "integrations/opening/actions.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// What stands where most addresses have their host, as it was typed.
QString typedHost(const QString& address)
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

/// QUrl's own host is in small letters.
QString hostAsTyped(const QUrl& url, const QString& address)
{
    const auto host = url.host();
    const auto typed = typedHost(address);
    const bool isSame = typed.compare(host, Qt::CaseInsensitive) == 0
        || (!typed.isEmpty() && QUrl::toAce(typed) == QUrl::toAce(host));
    return isSame ? typed : host;
}

} // namespace

QString linkName(const QString& typedName, const QString& address)
{
    if (!typedName.isEmpty()) {
        return typedName;
    }
    const auto full = withScheme(address);
    const QUrl url(full, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() ? hostAsTyped(url, full) : address;
}

} // namespace quib
