#pragma once

#include "platform/linux/window/windowpointer.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWindow>

/// A window that the pointer is told in, by events as Qt sends them.
struct PointerInWindow {
    static constexpr QPoint Corner{420, 0};
    static constexpr QPointF Place{100, 5}; ///< In the window.
    static constexpr QPointF Beyond{100, 600}; ///< In its coordinates too.

    std::unique_ptr<QWindow> window = std::make_unique<QWindow>();
    quib::WindowPointer pointer;
    QMimeData data;

    PointerInWindow()
    {
        window->setFlags(Qt::FramelessWindowHint);
        window->setGeometry({Corner, QSize(760, 330)});
        pointer.watch(*window);
    }

    void enter(QPointF place = Place) const
    {
        QEnterEvent event(place, place, Corner + place);
        QCoreApplication::sendEvent(window.get(), &event);
    }

    void leave() const
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(window.get(), &event);
    }

    void mouse(QEvent::Type type, QPointF place, Qt::MouseButtons held) const
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, place, Corner + place, button, held, {});
        QCoreApplication::sendEvent(window.get(), &event);
    }

    void dragOver(QPointF place = Place) const
    {
        QDragEnterEvent event(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &event);
    }

    void dragLeaves() const
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(window.get(), &event);
    }

    void drop() const
    {
        QDropEvent event(Place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &event);
    }

    bool isAt(QPointF inWindow) const { return pointer.state().position == Corner + inWindow; }

    bool isFarAway() const
    {
        return !QRectF(-10000, -10000, 20000, 20000).contains(pointer.state().position);
    }

    bool isHeld() const { return pointer.state().leftHeld; }
};
