#include "model/texts/timestamp.h"

using namespace Qt::StringLiterals;

namespace quib {

QString timestamp(const QString& notes, const QString& moment)
{
    const bool isOnAFreshLine = notes.isEmpty() || notes.endsWith(u'\n');
    return (isOnAFreshLine ? QString() : u"\n"_s) + u"— "_s + moment + u'\n';
}

} // namespace quib
