#include "app/notchpanel.h"

#include "app/notch/geometry.h"
#include "app/notch/notchmodel.h"
#include "app/panelengine.h"
#include "app/shell/commands.h"
#include "app/shell/panelhost.h"
#include "integrations/calendar/calendarcontroller.h"
#include "integrations/media/mediacontroller.h"
#include "integrations/opening/actions.h"
#include "integrations/opening/fileprobe.h"
#include "integrations/opening/iconsource.h"
#include "model/store.h"
#include "shortcuts/shortcuts.h"
#include "views/controls/focuseditem.h"
#include "views/shapes/notchshape.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QStyleHints>
#include <QSurfaceFormat>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

NotchPanel::NotchPanel(const ViewContext& context, PanelHost& host,
                       std::unique_ptr<PanelEngine> engine)
    : QQuickView(engine.get(), nullptr)
    , m_host(host)
{
    engine.release()->setParent(this); // Until the views are gone.
    auto format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
    setColor(Qt::transparent);
    setTitle(u"Korvel Quib"_s);
    setResizeMode(SizeRootObjectToView);
    resize(PanelSize.toSize());
    setInitialProperties(rootProperties(context));
    setSource(PanelEngine::rootSource());
    rootObject()->setFocus(true); // The view does not hand it on.
    m_afterPress.setSingleShot(true);
    connect(&m_afterPress, &QTimer::timeout, this, [this] { takeKeyboardForText(m_press); });
    m_host.adopt(*this);
    followShape(*rootObject()->findChild<NotchShape*>());
}

/// Told right before each frame is on the screen: width, height and radius change one by one.
void NotchPanel::followShape(const NotchShape& shape)
{
    const auto tell = [this, &shape] {
        if (!std::exchange(m_isShapeTold, true)) {
            m_host.setVisibleShape(shape.pathInScene());
        }
    };
    connect(&shape, &NotchShape::pathChanged, this, [this] { m_isShapeTold = false; });
    connect(this, &QQuickWindow::afterRendering, &shape, tell);
    tell();
}

/// A finger never becomes a mouse before it has reached the items. Some versions of Qt move the
/// focus when it is lifted.
bool NotchPanel::event(QEvent* event)
{
    const bool isFinger = event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchEnd;
    if (isFinger) {
        followFinger(static_cast<QTouchEvent*>(event)->points().constFirst());
    }
    return QQuickView::event(event);
}

/// One that has scrolled a list may be lifted over any field.
void NotchPanel::followFinger(const QEventPoint& finger)
{
    const auto way = finger.scenePosition() - finger.scenePressPosition();
    if (way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance()) {
        followPress(finger.scenePosition());
    }
}

void NotchPanel::mousePressEvent(QMouseEvent* event)
{
    QQuickView::mousePressEvent(event);
    followPress(event->position());
}

void NotchPanel::followPress(QPointF press)
{
    m_press = press;
    m_afterPress.start();
}

/// Pressing plain buttons leaves the keyboard where it is.
void NotchPanel::takeKeyboardForText(QPointF press)
{
    const auto* item = FocusedItem::in(this);
    const bool isText = item && item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
    if (isText && item->contains(item->mapFromScene(press))) {
        m_host.takeKeyboard();
    }
}

QVariantMap rootProperties(const ViewContext& context)
{
    return {
        {u"model"_s, QVariant::fromValue(&context.model)},
        {u"store"_s, QVariant::fromValue(&context.store)},
        {u"media"_s, QVariant::fromValue(&context.media)},
        {u"calendar"_s, QVariant::fromValue(&context.calendar)},
        {u"shortcuts"_s, QVariant::fromValue(&context.shortcuts)},
        {u"actions"_s, QVariant::fromValue(&context.actions)},
        {u"icons"_s, QVariant::fromValue(&context.icons)},
        {u"files"_s, QVariant::fromValue(&context.files)},
        {u"commands"_s, QVariant::fromValue(&context.commands)},
    };
}

} // namespace quib
