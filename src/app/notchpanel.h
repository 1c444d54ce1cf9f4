#pragma once

#include "app/composedonce.h"

#include <QQuickView>
#include <QTimer>

#include <memory>

namespace quib {

class Actions;
class CalendarController;
class Commands;
class FileProbe;
class IconSource;
class MediaController;
class NotchModel;
class NotchShape;
class PanelEngine;
class PanelHost;
class Shortcuts;
class Store;

/// What every view is made with. Everything is borrowed and outlives the views.
struct ViewContext {
    NotchModel& model;
    Store& store;
    MediaController& media;
    CalendarController& calendar;
    Shortcuts& shortcuts;
    Actions& actions;
    IconSource& icons;
    FileProbe& files;
    Commands& commands;
};

/// The transparent window over the notch. Its size never changes; the shape inside does. It takes
/// the keyboard when a text is pressed, and keeps the window system told of what is drawn.
class NotchPanel : public QQuickView {
    Q_OBJECT

public:
    /// The host is borrowed too.
    NotchPanel(const ViewContext& context, PanelHost& host, std::unique_ptr<PanelEngine> engine);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void followShape(const NotchShape& shape);
    void followFinger(const QEventPoint& finger);
    void followPress(QPointF press);
    void takeKeyboardForText(QPointF press);

    PanelHost& m_host;
    QPointF m_press;
    QTimer m_afterPress; ///< Due once the press has moved the focus.
    bool m_isShapeTold = false; ///< That of the frame that is drawn next.
    ComposedOnce m_composedOnce{*this};
};

/// What the root view of every panel and picture is made with.
QVariantMap rootProperties(const ViewContext& context);

} // namespace quib
