#include "model/texts/fileaddress.h"

#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

bool isOfThisHost(const QUrl& url)
{
    const auto host = url.host();
    return host.isEmpty() || host == "localhost"_L1
        || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

/// Decoded by ourselves: Qt would put other characters in the place of bytes that are no text.
QString decodedPath(const QUrl& url)
{
    const auto bytes = QByteArray::fromPercentEncoding(
        url.adjusted(QUrl::StripTrailingSlash).path(QUrl::FullyEncoded).toLatin1());
    auto path = QString::fromUtf8(bytes);
    return path.toUtf8() == bytes ? path : QString();
}

} // namespace

QString pathOfFile(const QUrl& url)
{
    if (!url.isLocalFile() || !isOfThisHost(url)) {
        return {};
    }
    auto path = decodedPath(url);
    return path.startsWith(u'/') && !path.contains(QChar::Null) ? path : QString();
}

} // namespace quib
