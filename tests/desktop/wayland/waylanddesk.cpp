#include "desktop/wayland/waylanddesk.h"

#include "desktop/wayland/xpanel.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// What a program that has ended said last.
QString lastWords(QProcess& program)
{
    const auto words = QString::fromUtf8(program.readAllStandardError()).trimmed();
    return program.program().section(u'/', -1) + u": "_s
        + (words.isEmpty() ? program.errorString() : words.section(u'\n', -1));
}

QStringList linesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n')
                                          : QStringList();
}

} // namespace

WaylandDesk::WaylandDesk(const Options& options)
    : DeskHome(Owner::NotRoot)
    , m_options(options)
    , m_lastOutput(options.outputs)
{
    for (int number = 1; number <= options.outputs; ++number) {
        m_outputNames << u"HEADLESS-%1"_s.arg(number);
    }
    startBus();
    startCompositor();
    if (isUp()) {
        startHand();
    }
    if (isUp()) {
        moveTo(FarAway);
    }
    if (isUp() && hasLayers()) {
        lookOnce();
    }
    if (isUp() && hasLayers()) {
        startBackground();
    }
}

WaylandDesk::~WaylandDesk()
{
    m_xPanel.reset();
    end(m_background);
    end(m_hand);
    end(m_compositor);
    endLeftovers();
}

void WaylandDesk::killCompositor()
{
    killNow(m_compositor);
}

/// It tells a program that it starts itself what the displays are called, once they are there.
void WaylandDesk::startCompositor()
{
    const auto told = folder(u"displays"_s);
    auto words = command();
    if (words.isEmpty()) {
        return;
    }
    const auto program = words.takeFirst();
    m_compositor = start(program, words);
    const bool isThere = waitFor("the compositor", [&] {
        return QFile::exists(told) || m_compositor->state() == QProcess::NotRunning;
    });
    const auto displays = linesOf(told);
    if (!isThere || displays.size() < 3) {
        m_refusal = isThere ? lastWords(*m_compositor) : program + u" does not come up"_s;
        return;
    }
    setVariable(u"WAYLAND_DISPLAY"_s, displays.at(0));
    setVariable(u"DISPLAY"_s, displays.at(1));
    setVariable(u"XAUTHORITY"_s, displays.at(2));
    qputenv("XAUTHORITY", displays.at(2).toLocal8Bit()); // For our own look at X.
    if (displays.at(1).isEmpty() == m_options.xwayland) {
        m_refusal = program + u" has started no X server"_s;
    } else if (m_options.xwayland && !hasLayers()) {
        m_xPanel = std::make_unique<XPanel>(displays.at(1));
    }
}

void WaylandDesk::startHand()
{
    const auto all = QSize(1600 * m_options.outputs, 900);
    m_hand = start(QStringLiteral(HAND),
                   hasLayers() ? QStringList{u"wayland"_s, QString::number(all.width()),
                                             QString::number(all.height())}
                               : QStringList{u"mutter"_s});
    waitFor("the hand", [this] {
        m_hand->waitForReadyRead(50);
        return m_hand->canReadLine() || m_hand->state() == QProcess::NotRunning;
    });
    if (m_hand->readLine() != "ready\n") {
        m_refusal = lastWords(*m_hand);
    }
}

/// Without a graphics card later versions of KWin draw in a way of which they take no pictures.
void WaylandDesk::lookOnce()
{
    QElapsedTimer patience;
    patience.start();
    while (picture().isNull() && isUp()) {
        if (patience.hasExpired(3000)) {
            m_refusal = m_compositor->program().section(u'/', -1) + u" takes no pictures here"_s;
        }
    }
}

/// Not black like the panel.
void WaylandDesk::startBackground()
{
    if (QStandardPaths::findExecutable(u"swaybg"_s).isEmpty()) {
        m_refusal = u"swaybg is not installed"_s;
        return;
    }
    const QColor colour(u"#406080"_s);
    m_background = start(u"swaybg"_s, {u"-c"_s, colour.name()});
    waitFor("the background", [&] {
        const auto seen = picture();
        return !seen.isNull() && seen.pixelColor(0, 0) == colour;
    });
}

Program WaylandDesk::startQuib() const
{
    auto program = start(quib());
    waitFor("the panel", [this] { return isPanelShown() && isCollapsed(); });
    return program;
}

Program WaylandDesk::startWindow(const QStringList& arguments) const
{
    auto window = start(QStringLiteral(NATIVE_WINDOW), arguments);
    const auto hasSaid = [&](const char* word) {
        window->waitForReadyRead(50);
        return window->peek(1 << 20).contains(word);
    };
    waitFor("the native window", [&] { return hasSaid("shown") && hasSaid("focus"); });
    moveTo(FarAway + QPoint(1, 1));
    waitFor("the pointer in the native window", [&] { return hasSaid("enter"); });
    return window;
}

/// Compositors and session services start programs that they leave behind.
void WaylandDesk::endLeftovers() const
{
    const auto mark = "XDG_RUNTIME_DIR=" + QFile::encodeName(folder(u"runtime"_s));
    for (const auto& process : QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs)) {
        QFile file(u"/proc/%1/environ"_s.arg(process));
        if (file.open(QIODevice::ReadOnly) && file.readAll().split('\0').contains(mark)) {
            ::kill(process.toInt(), SIGKILL);
        }
    }
}

void addCompositors()
{
    QTest::addColumn<WaylandDesk::Kind>("kind");

    QTest::addRow("sway") << WaylandDesk::Kind::Sway;
    QTest::addRow("KWin") << WaylandDesk::Kind::KWin;
    QTest::addRow("mutter") << WaylandDesk::Kind::Mutter;
}
