#include "views/texts/textline.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int MostCharacters = 300;
constexpr int MostAtAnEnd = MostCharacters / 2;
/// A character may be made of any number of marks: this many code units are looked at.
constexpr qsizetype MostUnits = 3000;

bool breaksLines(QChar c)
{
    return c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85)
        || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// What a font draws as a box, if as anything. A tabulator is a blank.
bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control && c != u'\t';
}

bool readsFromTheRight(QChar c)
{
    return c.direction() == QChar::DirR || c.direction() == QChar::DirAL
        || c.direction() == QChar::DirAN;
}

/// Where that many characters from the beginning end.
qsizetype endOfBeginning(const QString& text, int characters)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData(),
                               std::min(text.size(), MostUnits));
    for (int i = 0; i < characters && finder.position() < MostUnits; ++i) {
        if (finder.toNextBoundary() < 0) {
            return text.size();
        }
    }
    if (finder.position() == MostUnits && text.size() > MostUnits) {
        finder.toPreviousBoundary(); // What ends there may have been cut in two.
    }
    return finder.position();
}

/// Where the last characters begin, that many of them.
qsizetype startOfEnd(const QString& text, int characters)
{
    const auto before = std::max<qsizetype>(0, text.size() - MostUnits);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData() + before,
                               text.size() - before);
    finder.toEnd();
    for (int i = 0; i < characters && finder.position() > 0; ++i) {
        finder.toPreviousBoundary();
    }
    if (finder.position() == 0 && before > 0) {
        finder.toNextBoundary(); // What begins there may have been cut in two.
    }
    return before + finder.position();
}

} // namespace

QString TextLine::unbroken(const QString& text)
{
    if (std::ranges::none_of(text, isControl) && std::ranges::none_of(text, breaksLines)) {
        return text;
    }
    QString line = text;
    line.replace(u"\r\n"_s, u" "_s);
    std::ranges::replace_if(line, breaksLines, u' ');
    return line.removeIf(isControl);
}

QString TextLine::beginning(const QString& text)
{
    if (text.size() <= MostCharacters) {
        return unbroken(text);
    }
    const auto end = endOfBeginning(text, MostCharacters);
    const auto line = unbroken(text.first(end));
    return end < text.size() ? line + u'…' : line;
}

QString TextLine::ends(const QString& text)
{
    if (text.size() <= MostCharacters) {
        return unbroken(text);
    }
    const auto end = endOfBeginning(text, MostAtAnEnd);
    const auto start = startOfEnd(text, MostAtAnEnd);
    return start > end ? unbroken(text.first(end)) + u'…' + unbroken(text.sliced(start))
                       : unbroken(text);
}

bool TextLine::standsInCells(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return !c.isSurrogate() && !c.isMark() && !readsFromTheRight(c)
            && c.joiningType() == QChar::Joining_None;
    });
}

QString TextLine::isolated(const QString& text)
{
    const bool isNeeded = std::ranges::any_of(text, readsFromTheRight);
    return isNeeded ? QChar(0x2068) + text + QChar(0x2069) : text;
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
