#pragma once

#include "platform/linux/window/windowpointer.h"
#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xwaylandpanelhost.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTest>

namespace quib {

/// Notes the keys that reach it, and the size that its scene has.
class ListeningPanel : public QWindow {
public:
    QSize size;
    QString heard;
    QList<bool> repeats;

protected:
    void resizeEvent(QResizeEvent* event) override { size = event->size(); }

    void keyPressEvent(QKeyEvent* event) override
    {
        heard += event->text();
        repeats.append(event->isAutoRepeat());
    }
};

/// A panel that is shown as through Xwayland, on a plain X server with a window manager, which
/// gives the keyboard like the compositors do. Another program below it has the keyboard.
struct PanelThroughXwayland {
    static constexpr QRect Frame{420, 0, 760, 330};
    static constexpr QRect Card{30, 0, 700, 290}; ///< In the window.
    static constexpr QRect Notch{270, 0, 220, 30};

    double scale = qGuiApp->primaryScreen()->devicePixelRatio();
    std::unique_ptr<OtherProgram> lender;
    WindowPointer pointer;
    std::unique_ptr<ListeningPanel> window;
    std::unique_ptr<XwaylandPanelHost> host;

    static std::unique_ptr<RunningProgram> startWindowManager()
    {
        auto manager = std::make_unique<RunningProgram>(QStringList{QStringLiteral("openbox")});
        return QTest::qWaitFor(hasWindowManager) ? std::move(manager) : nullptr;
    }

    void show()
    {
        lend();
        window = std::make_unique<ListeningPanel>();
        host = std::make_unique<XwaylandPanelHost>(pointer);
        host->adopt(*window);
        host->place(Frame);
        host->setHoverRect(Notch);
        host->setInputRegion({});
        host->setVisibleShape(drawn({200, 24}));
        host->orderFront();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_COMPARE(nativeRect(), onServer(Notch));
        QTRY_COMPARE(window->size, Notch.size());
    }

    void end()
    {
        host.reset();
        window.reset();
        const auto before = lender->window();
        lender.reset();
        // The next one may get the same number.
        QTRY_VERIFY_WITH_TIMEOUT(!isManaged(before), 20000);
    }

    void open() const
    {
        host->setHoverRect({26, 0, 708, 294});
        host->orderFront();
        host->setInputRegion(Card);
    }

    void openWithKeyboard() const
    {
        open();
        host->takeKeyboard();
        QTRY_VERIFY(hasFocus());
    }

    void close(QSizeF drawnSize = QSizeF(200, 24)) const
    {
        host->setHoverRect(Notch);
        host->setInputRegion({});
        host->setVisibleShape(drawn(drawnSize));
    }

    bool hasFocus() const { return QGuiApplication::focusWindow() == window.get(); }
    xcb_window_t native() const { return xcb_window_t(window->winId()); }
    QRect nativeRect() const { return nativeFrame(native()); }

    QRect onServer(const QRect& inFrame) const
    {
        const QRectF rect = inFrame.translated(Frame.topLeft());
        return QRectF(rect.topLeft() * scale, rect.size() * scale).toAlignedRect();
    }

    static QPainterPath drawn(QSizeF size)
    {
        QPainterPath path;
        path.addRect({{}, size});
        return path;
    }

private:
    void lend()
    {
        lender = std::make_unique<OtherProgram>(QRect(0, 0, 1600, 800),
                                                OtherProgram::Placing::ByWindowManager);
        lender->setPlace({0, 0});
        const auto hints = "_MOTIF_WM_HINTS";
        lender->setProperty(hints, atomNamed(qtConnection(), hints), {2, 0, 0, 0, 0});
        lender->show(); // Without a frame.
        QTRY_VERIFY_WITH_TIMEOUT(isManaged(lender->window()), 20000);
        QTRY_COMPARE((lender->takeKeyboard(), keyboardOwner()), lender->window());
    }
};

} // namespace quib
