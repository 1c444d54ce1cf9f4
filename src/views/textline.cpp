#include "views/textline.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int MostCharacters = 300;
/// A character may be made of any number of marks: this many code units are looked at.
constexpr qsizetype MostUnits = 3000;

bool breaksLines(QChar c)
{
    return c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85)
        || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// Where the last character that may be shown ends.
qsizetype endOfBeginning(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData(),
                               std::min(text.size(), MostUnits));
    for (int i = 0; i < MostCharacters && finder.position() < MostUnits; ++i) {
        if (finder.toNextBoundary() < 0) {
            return text.size();
        }
    }
    if (finder.position() == MostUnits && text.size() > MostUnits) {
        finder.toPreviousBoundary(); // What ends there may have been cut in two.
    }
    return finder.position();
}

} // namespace

QString TextLine::unbroken(const QString& text)
{
    if (std::ranges::none_of(text, breaksLines)) {
        return text;
    }
    QString line = text;
    line.replace(u"\r\n"_s, u" "_s);
    std::ranges::replace_if(line, breaksLines, u' ');
    return line;
}

QString TextLine::beginning(const QString& text)
{
    if (text.size() <= MostCharacters) {
        return unbroken(text);
    }
    const auto end = endOfBeginning(text);
    const auto line = unbroken(text.first(end));
    return end < text.size() ? line + u'…' : line;
}

double TextLine::widestDigit(const QFont& font)
{
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    }
    return widest;
}

} // namespace quib
