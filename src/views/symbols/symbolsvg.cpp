#include "views/symbols/symbolsvg.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QSvgRenderer>

#include <span>
#include <utility>

namespace quib {

namespace {

/// The scale at which Qt keeps curves round.
constexpr double Fine = 2000;

/// Collects what a painter draws, as outlines where it would be seen.
class OutlineEngine final : public QPaintEngine {
public:
    OutlineEngine()
        : QPaintEngine(AllFeatures)
    {
        m_outline.setFillRule(Qt::WindingFill);
    }

    const QPainterPath& outline() const { return m_outline; }

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawLines;
    using QPaintEngine::drawPolygon;
    using QPaintEngine::drawRects;
    void updateState(const QPaintEngineState& state) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawEllipse(const QRectF& box) override;
    void drawRects(const QRectF* rects, int count) override;
    void drawLines(const QLineF* lines, int count) override;
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                    const QRectF& /*from*/) override
    {
    }

private:
    void add(QPainterPath path);

    QPainterPath m_outline;
    QTransform m_transform;
    QPen m_pen;
    QBrush m_brush;
};

void OutlineEngine::updateState(const QPaintEngineState& state)
{
    if (state.state() & DirtyTransform) {
        m_transform = state.transform();
    }
    if (state.state() & DirtyPen) {
        m_pen = state.pen();
    }
    if (state.state() & DirtyBrush) {
        m_brush = state.brush();
    }
}

void OutlineEngine::drawPath(const QPainterPath& path)
{
    if (m_brush.style() != Qt::NoBrush) {
        add(m_transform.map(path));
    }
    if (m_pen.style() != Qt::NoPen && m_pen.widthF() > 0) {
        QPainterPathStroker stroker(m_pen);
        stroker.setCurveThreshold(0.02);
        add(m_transform.map(stroker.createStroke(path)));
    }
}

void OutlineEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
    if (mode != PolylineMode) {
        path.closeSubpath();
    }
    drawPath(path);
}

void OutlineEngine::drawEllipse(const QRectF& box)
{
    QPainterPath path;
    path.addEllipse(box);
    drawPath(path);
}

void OutlineEngine::drawRects(const QRectF* rects, int count)
{
    for (const auto& rect : std::span(rects, static_cast<std::size_t>(count))) {
        QPainterPath path;
        path.addRect(rect);
        drawPath(path);
    }
}

void OutlineEngine::drawLines(const QLineF* lines, int count)
{
    for (const auto& line : std::span(lines, static_cast<std::size_t>(count))) {
        QPainterPath path(line.p1());
        path.lineTo(line.p2());
        drawPath(path);
    }
}

/// A part whose holes are told by parity can only stand alone; with others it is made over first.
void OutlineEngine::add(QPainterPath path)
{
    if (m_outline.isEmpty()) {
        m_outline = std::move(path);
    } else if (m_outline.fillRule() == Qt::WindingFill && path.fillRule() == Qt::WindingFill) {
        m_outline.addPath(path);
    } else {
        m_outline = joined(m_outline, path);
    }
}

class OutlineDevice final : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return &m_engine; }
    const QPainterPath& outline() const { return m_engine.outline(); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight: return 1000;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
        default: return 96;
        }
    }

private:
    mutable OutlineEngine m_engine; // Qt asks a constant device for the engine it writes to.
};

QTransform scaled(double factor)
{
    return QTransform::fromScale(factor, factor);
}

} // namespace

QPainterPath svgOutline(const QByteArray& svg)
{
    QByteArray black = svg;
    black.replace("currentColor", "#000");
    QSvgRenderer renderer(black);
    if (!renderer.isValid()) {
        return {};
    }
    OutlineDevice device;
    QPainter painter(&device);
    renderer.render(&painter, QRectF(0, 0, 1, 1));
    painter.end();
    return device.outline();
}

QPainterPath joined(const QPainterPath& one, const QPainterPath& other)
{
    return scaled(1 / Fine).map(scaled(Fine).map(one).united(scaled(Fine).map(other)));
}

QPainterPath without(const QPainterPath& one, const QPainterPath& other)
{
    return scaled(1 / Fine).map(scaled(Fine).map(one).subtracted(scaled(Fine).map(other)));
}

} // namespace quib
