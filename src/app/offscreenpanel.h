#pragma once

#include "app/panelengine.h"

#include <QImage>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <memory>

namespace quib {

struct ViewContext;

/// A panel that no window system knows of. Its render control is never initialised: the software
/// scene graph needs no graphics device.
class OffscreenPanel {
public:
    explicit OffscreenPanel(const ViewContext& context);

    /// Null where there is no view to draw.
    QQuickItem* root() const { return m_root.get(); }
    /// For sending it events.
    QQuickWindow& window() { return m_window; }
    /// As it stands now, clear around the card, in the pixels of the application's scale; null
    /// where there is no view to draw.
    QImage picture();

private:
    void prepareWindow();

    PanelEngine m_engine;
    QQuickRenderControl m_control;
    QImage m_picture; ///< Drawn over: the scene graph draws anew only what has changed.
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_root;
};

} // namespace quib
