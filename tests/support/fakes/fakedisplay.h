#pragma once

#include "app/shell/panelhost.h"
#include "app/shell/pointersource.h"
#include "app/shell/screensource.h"

#include <QStringList>

#include <utility>

/// One screen with a bar of 30 points at its top, unless a test says otherwise.
class FakeScreenSource final : public quib::ScreenSource {
public:
    QList<quib::Screen> list{
        {.frame = {0, 0, 1920, 1080}, .visibleFrame = {0, 30, 1920, 1050}, .isMain = true}};

    QList<quib::Screen> screens() const override { return list; }
};

/// Tells of nothing by itself, unless a test says otherwise.
class FakePointerSource final : public quib::PointerSource {
public:
    quib::PointerState now;
    bool polled = false;
    bool announces = false;
    bool announced = false; ///< The next move will be.
    mutable int asked = 0; ///< How often for its state.

    quib::PointerState state() const override
    {
        ++asked;
        return now;
    }
    bool needsPolling() const override { return polled; }
    bool announceNextChange() override
    {
        announced = announces;
        return announces;
    }

    void become(const quib::PointerState& state)
    {
        if (std::exchange(now, state) != state && std::exchange(announced, false)) {
            Q_EMIT changed();
        }
    }
    void move(QPointF position) { become({.position = position, .leftHeld = now.leftHeld}); }
};

/// Writes what was asked of it, in order, into the test's list.
class FakePanelHost final : public quib::PanelHost {
public:
    explicit FakePanelHost(QStringList& asked)
        : m_asked(asked)
    {
    }

    QPainterPath shape;
    QRect hoverRect;

    void adopt(QWindow& /*window*/) override { m_asked << QStringLiteral("adopt"); }
    void place(const QRectF& frame) override
    {
        m_asked << QStringLiteral("place at %1,%2").arg(frame.x()).arg(frame.y());
    }
    void setInputRegion(const QRegion& region) override
    {
        m_asked << (region.isEmpty() ? QStringLiteral("let clicks through")
                                     : QStringLiteral("take clicks"));
    }
    void setHoverRect(const QRect& rect) override { hoverRect = rect; }
    void setVisibleShape(const QPainterPath& visible) override { shape = visible; }
    void orderFront() override { m_asked << QStringLiteral("order front"); }
    bool takeKeyboard() override
    {
        m_asked << QStringLiteral("take keyboard");
        return true;
    }
    void giveBackKeyboard(std::optional<quint32> click) override
    {
        m_asked << QStringLiteral("give back keyboard %1").arg(click.value_or(0));
    }

private:
    QStringList& m_asked;
};
