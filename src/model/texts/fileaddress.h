#pragma once

#include <QString>
#include <QUrl>

namespace quib {

/// The full path that the address of a file on this host means, without the "/" that some programs
/// end folders with. Empty where it means none: no file, of another host, or with a name that is no
/// text.
QString pathOfFile(const QUrl& url);

} // namespace quib
