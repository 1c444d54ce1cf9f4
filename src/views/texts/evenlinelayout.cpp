#include "views/texts/evenlinelayout.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double Unbounded = 1e6;

/// The next line of a text, as wide as it may be; invalid when there is none left.
QTextLine nextLine(QTextLayout& text, double width)
{
    auto line = text.createLine();
    if (line.isValid()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
    }
    return line;
}

/// Whether it has a word of which breaking it at its end is all that is left. Qt looks for that end
/// at each of its lines: 50 s in a word of a megabyte.
bool hasEndlessWord(const QString& text)
{
    constexpr int Endless = 1000;
    constexpr char16_t FirstIdeograph = 0x2E80; // Between those, lines break anyway.
    int length = 0;
    for (const auto letter : text) {
        const bool endsTheWord
            = letter.isSpace() || letter == u'-' || letter.unicode() >= FirstIdeograph;
        length = endsTheWord ? 0 : length + 1;
        if (length > Endless) {
            return true;
        }
    }
    return false;
}

} // namespace

EvenLineLayout::EvenLineLayout(QTextDocument* document)
    : QAbstractTextDocumentLayout(document)
{
}

int EvenLineLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const
{
    layOutWhatIsStale();
    const QRectF page({}, documentSize());
    if (accuracy == Qt::ExactHit && !page.contains(point)) {
        return -1;
    }
    if (point.y() < page.top()) {
        return 0;
    }
    if (point.y() >= page.bottom()) {
        return document()->characterCount() - 1;
    }
    const auto row = static_cast<int>(point.y() / m_lineHeight);
    const auto block = document()->findBlockByLineNumber(row);
    const auto line = lineAt(block, point.y() - blockBoundingRect(block).top());
    return block.position() + (line.isValid() ? line.xToCursor(point.x()) : 0);
}

QSizeF EvenLineLayout::documentSize() const
{
    layOutWhatIsStale();
    return {width(), document()->lineCount() * m_lineHeight};
}

QRectF EvenLineLayout::frameBoundingRect(QTextFrame* /*frame*/) const
{
    return {QPointF(), documentSize()};
}

QRectF EvenLineLayout::blockBoundingRect(const QTextBlock& block) const
{
    if (!block.isValid()) {
        return {};
    }
    layOutWhatIsStale();
    if (!hasWidth()) {
        measureLine();
        layOut(block); // What asks draws it next, and counts on its lines.
    }
    return {0, block.firstLineNumber() * m_lineHeight, width(), block.lineCount() * m_lineHeight};
}

void EvenLineLayout::draw(QPainter* /*painter*/, const PaintContext& /*context*/) { }

int EvenLineLayout::pageCount() const
{
    return 1;
}

void EvenLineLayout::documentChanged(int from, int /*charsRemoved*/, int charsAdded)
{
    const bool isAll = from == 0 && charsAdded >= document()->characterCount() - 1;
    if (m_isStale || isAll) {
        m_isStale = true; // An item that is being made changes the width and the font next.
        return;
    }
    const auto last = document()->findBlock(from + charsAdded);
    for (auto block = document()->findBlock(from); block.isValid(); block = block.next()) {
        layOut(block);
        if (block == last) {
            break;
        }
    }
    Q_EMIT documentSizeChanged(documentSize());
}

double EvenLineLayout::width() const
{
    return hasWidth() ? document()->textWidth() : Unbounded;
}

/// None while an item is being made.
bool EvenLineLayout::hasWidth() const
{
    return document()->textWidth() > 0;
}

void EvenLineLayout::layOutWhatIsStale() const
{
    if (!m_isStale || !hasWidth()) {
        return;
    }
    m_isStale = false;
    measureLine();
    for (auto block = document()->begin(); block.isValid(); block = block.next()) {
        layOut(block);
    }
}

void EvenLineLayout::measureLine() const
{
    QTextLayout text(u"x"_s, document()->defaultFont());
    text.beginLayout();
    const auto line = nextLine(text, width());
    text.endLayout();
    m_lineHeight = line.height();
    m_ascent = line.ascent();
}

/// Letters of other fonts stand on the same even lines as those of the document's own.
void EvenLineLayout::layOut(QTextBlock block) const
{
    auto& text = *block.layout();
    auto option = document()->defaultTextOption();
    option.setTextDirection(block.textDirection());
    if (block.textDirection() == Qt::RightToLeft && hasWidth()) {
        option.setAlignment(Qt::AlignRight); // Where its lines begin.
    }
    if (hasEndlessWord(block.text())) {
        option.setWrapMode(QTextOption::WrapAnywhere);
    }
    text.setTextOption(option);
    int rows = 0;
    text.beginLayout();
    for (auto line = nextLine(text, width()); line.isValid(); line = nextLine(text, width())) {
        line.setPosition({0, rows * m_lineHeight + m_ascent - line.ascent()});
        rows += std::max(1, qRound(line.height() / m_lineHeight));
    }
    text.endLayout();
    block.setLineCount(rows);
}

QTextLine EvenLineLayout::lineAt(const QTextBlock& block, double y) const
{
    const auto& text = *block.layout();
    int number = text.lineCount() - 1;
    const auto top = [&](const QTextLine& line) { return line.y() + line.ascent() - m_ascent; };
    while (number > 0 && top(text.lineAt(number)) > y) {
        --number;
    }
    return number < 0 ? QTextLine() : text.lineAt(number);
}

} // namespace quib
