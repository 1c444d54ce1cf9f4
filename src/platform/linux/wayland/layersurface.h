#pragma once

#include <QObject>
#include <QSize>

struct wl_output;
struct wl_surface;
struct zwlr_layer_surface_v1;

namespace quib {

class LayerShell;

/// Makes a surface a panel at the top edge of an output, centred, over whatever else reserves room
/// there. Its layer is for good: KWin lets a surface lie where it was.
class LayerSurface : public QObject {
    Q_OBJECT

public:
    enum class Layer { BelowWindows = 1, AboveAll = 3 };
    enum class Keyboard { Never, AtOnce, OnDemand };

    /// Waits until the compositor knows the surface, which must not have drawn anything yet.
    /// All three are borrowed and outlive this; without an output the compositor chooses.
    LayerSurface(const LayerShell& shell, wl_surface* surface, wl_output* output, QSize size,
                 Layer layer = Layer::AboveAll);
    ~LayerSurface() override;

    /// False when the compositor has not answered or takes it away: the surface must not draw.
    bool isReady() const { return m_isReady && !m_isClosed; }

    /// AtOnce: now, from whoever has it. OnDemand: when the user presses here. Commits the surface.
    void setKeyboard(Keyboard keyboard);

Q_SIGNALS:
    /// The output has gone, or the compositor takes the panel away: this is of no use any more.
    void closed();

private:
    struct Listening;

    wl_surface* m_surface;
    zwlr_layer_surface_v1* m_role;
    bool m_isReady = false;
    bool m_isClosed = false;
};

} // namespace quib
