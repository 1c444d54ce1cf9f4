#include "app/offscreenpanel.h"

#include "app/notch/geometry.h"
#include "app/notchpanel.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickRenderTarget>

namespace quib {

OffscreenPanel::OffscreenPanel(const ViewContext& context)
{
    prepareWindow();
    QQmlComponent component(&m_engine, PanelEngine::rootSource());
    m_root.reset(
        qobject_cast<QQuickItem*>(component.createWithInitialProperties(rootProperties(context))));
    if (m_root) {
        m_root->setParentItem(m_window.contentItem());
        m_root->setSize(PanelSize);
        m_control.polishItems(); // Lists make their rows, and these ask for icons.
    }
}

QImage OffscreenPanel::picture()
{
    if (!m_root) {
        return {};
    }
    m_control.polishItems();
    m_control.sync();
    m_control.render(); // Frames are begun and ended on graphics devices only.
    return m_picture;
}

void OffscreenPanel::prepareWindow()
{
    m_window.setColor(Qt::transparent);
    m_window.setGeometry(QRect({}, PanelSize.toSize()));
    m_window.contentItem()->setSize(PanelSize);
    const auto scale = qGuiApp->devicePixelRatio();
    m_picture = QImage((PanelSize * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    m_picture.fill(Qt::transparent);
    m_picture.setDevicePixelRatio(scale);
    auto target = QQuickRenderTarget::fromPaintDevice(&m_picture);
    target.setDevicePixelRatio(scale);
    m_window.setRenderTarget(target);
}

} // namespace quib
