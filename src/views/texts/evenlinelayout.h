#pragma once

#include <QAbstractTextDocumentLayout>

namespace quib {

/// Lays out a plain text in lines of one height, or of a multiple of it where a script needs the
/// room. So the place of a line is its number, and an edit costs as much as its own paragraph: the
/// layout of Qt looks at all that follow, which takes 7 ms in 20,000 lines.
class EvenLineLayout : public QAbstractTextDocumentLayout {
    Q_OBJECT

public:
    explicit EvenLineLayout(QTextDocument* document);

    int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame* frame) const override;
    QRectF blockBoundingRect(const QTextBlock& block) const override;

    /// Nobody asks: items draw the lines themselves, on one page.
    void draw(QPainter* painter, const PaintContext& context) override;
    int pageCount() const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    double width() const;
    bool hasWidth() const;
    void layOutWhatIsStale() const;
    void measureLine() const;
    void layOut(QTextBlock block) const;
    QTextLine lineAt(const QTextBlock& block, double y) const;

    mutable bool m_isStale = true; ///< All of it: laid out once somebody asks.
    mutable double m_lineHeight = 1;
    mutable double m_ascent = 0;
};

} // namespace quib
