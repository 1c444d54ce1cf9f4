#pragma once

#include "desktop/desk/deskhome.h"

#include <QImage>
#include <QSize>

#include <memory>

class XPanel;

/// A desktop of the test's own that a Wayland compositor shows on a screen that is nowhere, with a
/// session bus and a home, a hand that moves its pointer, and the real program on it. Everything
/// ends with the desk. Waits give up after some seconds and say what did not come.
class WaylandDesk : public DeskHome {
public:
    enum class Kind { Sway, KWin, Mutter };

    struct Options {
        Kind kind;
        int outputs = 1; ///< Each of 1600 by 900 points, beside each other.
        double scale = 1;
        bool xwayland = true;
    };

    explicit WaylandDesk(const Options& options);
    ~WaylandDesk();

    bool isUp() const { return m_refusal.isEmpty(); }
    /// Why there is no such desk on this machine, in the system's own words.
    QString refusal() const { return m_refusal; }
    Kind kind() const { return m_options.kind; }
    /// Whether the compositor takes windows into layers above all others.
    bool hasLayers() const { return m_options.kind != Kind::Mutter; }

    /// Starts Quib and waits for its panel.
    Program startQuib() const;
    /// A native window with the keyboard; what it prints tells what reaches it.
    Program startWindow(const QStringList& arguments = {QStringLiteral("--maximized")}) const;

    /// At once, as a flick or another pointer's jump is told.
    void moveTo(QPoint point) const;
    /// In steps of a few points, as a hand does.
    void glideTo(QPoint point) const;
    void click(QPoint point) const;
    void button(bool isDown) const;
    void type(const QString& text) const;
    /// "Return", or with a modifier: "ctrl+4".
    void key(const QString& name) const;
    void showTab(int number) const;
    void openWithPointer() const;
    /// Until the window has lost the keyboard, whose all is that is typed before. `heard` is what
    /// the window prints.
    bool pressField(QPoint field, Output& heard) const;
    static bool hasKeyboard(Output& heard);

    bool isPanelShown() const;
    bool isExpanded() const;
    bool isCollapsed() const;
    bool waitForExpanded(bool expanded) const;
    int selectedTab() const; ///< -1 while none shows.
    /// Of where the panel's window lies: the middle of the screen's upper edge. Null when there is
    /// none. Where the compositor lets nobody take any, it shows nothing but the panel.
    QImage picture() const;

    void killCompositor();

    /// Whether the panel is a window of X.
    bool hasXPanel() const;

    /// The outputs with these numbers, counted from 0, are on from here on, side by side from the
    /// left; all others are off. Gives back why that can't be, or nothing.
    QString setOutputs(const QList<int>& numbers);

private:
    QStringList command();
    QStringList swayCommand();
    QStringList kwinCommand();
    QStringList mutterCommand();
    QString announcer() const;
    void startCompositor();
    void startHand();
    void lookOnce();
    void startBackground();
    void endLeftovers() const;
    QString tellSway(const QString& order) const;
    QString setOutputsOfSway(const QList<int>& numbers);
    void tell(const QString& order) const;
    QImage pictureByProgram() const;
    QPoint scaled(QPoint point) const;

    Options m_options;
    QString m_refusal;
    Program m_compositor;
    Program m_hand;
    Program m_background;
    std::unique_ptr<XPanel> m_xPanel; ///< Only where there are no layers.
    QStringList m_outputNames; ///< What sway calls them; empty for those that are off.
    int m_lastOutput; ///< In sway's count.
    mutable QPoint m_place;
};

/// A row of test data for each compositor.
void addCompositors();

/// Looks for a desk that can't be here, and says why.
#define SKIP_UNLESS_UP(desk)                                                                       \
    if (!(desk).isUp())                                                                            \
    QSKIP(qPrintable((desk).refusal()))
