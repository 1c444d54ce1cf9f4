#pragma once

#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

/// A panel in its place, over a program that fills the screen.
struct XcbPanelOnScreen {
    static constexpr QRect Frame{200, 0, 300, 200};
    static constexpr QRect Card{50, 0, 200, 100}; ///< In the window.

    double scale = qGuiApp->primaryScreen()->devicePixelRatio();
    quib::OtherProgram beneath{QRect(0, 0, 1600, 900)};
    std::unique_ptr<QWindow> window = std::make_unique<QWindow>();
    quib::XcbPanelHost host;

    XcbPanelOnScreen()
    {
        beneath.show();
        host.adopt(*window);
        host.place(Frame);
    }

    void show()
    {
        host.orderFront();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    xcb_window_t native() const { return xcb_window_t(window->winId()); }
    QRegion inputShape() const { return quib::shapeOf(native(), XCB_SHAPE_SK_INPUT); }
    QRegion boundingShape() const { return quib::shapeOf(native(), XCB_SHAPE_SK_BOUNDING); }

    QRect scaled(const QRect& points) const
    {
        return QRectF(points.x() * scale, points.y() * scale, points.width() * scale,
                      points.height() * scale)
            .toAlignedRect();
    }
    QPoint onScreen(QPoint inWindow) const
    {
        return scaled(Frame).topLeft()
            + QPoint(qRound(inWindow.x() * scale), qRound(inWindow.y() * scale));
    }
};
