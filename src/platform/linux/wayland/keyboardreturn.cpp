#include "platform/linux/wayland/keyboardreturn.h"

#include "platform/linux/wayland/layersurface.h"
#include "platform/linux/wayland/qtwayland.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QScreen>

#include <utility>

#include <wayland-client.h>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto Patience = 1s;
constexpr int AnswersForQt = 2; ///< After the first it asks too, before it believes in a change.

} // namespace

/// Nothing to be seen, and nothing that the pointer meets.
class KeyboardReturn::Taker : public QRasterWindow {
public:
    explicit Taker(const LayerShell& shell, QScreen& screen)
    {
        makeBareWhenCreated(*this);
        setScreen(&screen);
        setGeometry({screen.geometry().topLeft(), QSize(1, 1)});
        auto seeThrough = requestedFormat();
        seeThrough.setAlphaBufferSize(8);
        setFormat(seeThrough);
        setMask(Nowhere);
        create();
        m_surface = std::make_unique<LayerSurface>(shell, surfaceOf(*this), outputOf(screen),
                                                   QSize(1, 1));
        if (m_surface->isReady()) {
            m_surface->setKeyboard(LayerSurface::Keyboard::AtOnce);
            show();
        }
    }
    ~Taker() override
    {
        m_surface.reset(); // The role goes before what has it.
        destroy();
    }
    Taker(const Taker&) = delete;
    Taker& operator=(const Taker&) = delete;

private:
    std::unique_ptr<LayerSurface> m_surface;
};

struct KeyboardReturn::Listening {
    static void heard(void* self, wl_callback* /*callback*/, uint32_t /*serial*/)
    {
        static_cast<KeyboardReturn*>(self)->hear();
    }

    static constexpr wl_callback_listener Answer{.done = heard};
};

KeyboardReturn::KeyboardReturn(const LayerShell& shell)
    : m_shell(shell)
{
    m_thenTake.setSingleShot(true);
    connect(&m_thenTake, &QTimer::timeout, this, &KeyboardReturn::takeFromPanel);
    m_giveUp.setSingleShot(true);
    m_giveUp.setInterval(Patience);
    connect(&m_giveUp, &QTimer::timeout, this, &KeyboardReturn::cancel);
    // Not from within the telling of it.
    connect(
        qGuiApp, &QGuiApplication::focusWindowChanged, this,
        [this](const QWindow* window) {
            if (m_taker && window == m_taker.get()) {
                cancel();
            }
        },
        Qt::QueuedConnection);
}

KeyboardReturn::~KeyboardReturn()
{
    cancel();
}

void KeyboardReturn::start(QWindow& panel)
{
    m_panel = &panel;
    if (!isUnderWay()) {
        m_answers = 0;
        ask();
    }
}

void KeyboardReturn::cancel()
{
    m_thenTake.stop();
    m_giveUp.stop();
    m_taker.reset();
    if (m_answer != nullptr) {
        wl_callback_destroy(std::exchange(m_answer, nullptr));
    }
}

bool KeyboardReturn::isUnderWay() const
{
    return m_answer != nullptr || m_thenTake.isActive() || m_taker;
}

void KeyboardReturn::ask()
{
    m_answer = wl_display_sync(m_shell.display());
    wl_callback_add_listener(m_answer, &Listening::Answer, this);
}

void KeyboardReturn::hear()
{
    wl_callback_destroy(std::exchange(m_answer, nullptr));
    if (++m_answers < AnswersForQt) {
        ask();
    } else {
        m_thenTake.start();
    }
}

void KeyboardReturn::takeFromPanel()
{
    if (m_panel && QGuiApplication::focusWindow() == m_panel && isReal(*m_panel->screen())) {
        m_taker = std::make_unique<Taker>(m_shell, *m_panel->screen());
        m_giveUp.start();
    }
}

} // namespace quib
