#pragma once

#include "desktop/desk/deskhome.h"

#include <QColor>
#include <QImage>

/// A desktop of the test's own: an X server, a window manager, a session bus and a home, with the
/// real program on it. Everything ends with the desk. Waits give up after some seconds; the test
/// fails where it looks at what did not come.
class Desk : public DeskHome {
public:
    struct Options {
        bool compositor = false;
        bool sessionBus = true;
        int scale = 1;
        bool outputs = false; ///< DUMMY0 to DUMMY3, which can have other sizes and be off.
        bool xinput = true; ///< Without it Quib meets a server that does not know of it.
    };

    struct Connection;

    explicit Desk(Options options);
    Desk();
    ~Desk();

    /// Starts Quib, by the words before its name if there are any, and waits for its panel.
    Program startQuib(QStringList command = {}, const QStringList& arguments = {});
    /// A window that covers the screen and tells what reaches it.
    Program startListener();
    static QString dragSource();

    void moveTo(QPoint point) const;
    /// As a hand does: a device tells of it.
    void pushTo(QPoint point) const;
    void click(QPoint point) const;
    void rightClick(QPoint point) const;
    void middleClick(QPoint point) const;
    void button(const QString& downOrUp) const;
    void type(const QString& text) const;
    void key(const QString& name) const;
    /// Down for as long as it takes to repeat a dozen times.
    void hold(const QString& key) const;
    void showTab(int number) const;
    void openWithPointer() const;
    /// Opens the panel with the pointer and types a task; does not wait for it.
    void addTask(const QString& title) const;

    QColor pixel(QPoint point) const;
    QImage picture() const;
    bool isExpanded() const;
    int selectedTab() const; ///< -1 while none shows.
    bool waitForExpanded(bool expanded) const;
    /// Of the window that has the keyboard; empty while none has.
    QString titleInFront() const;
    bool waitForFront(const QString& title) const;
    bool waitForOwner(const QByteArray& selection) const;

    // Parts of the desktop that end as crashes of them would, and come again.
    void startWindowManager(const QString& command = QStringLiteral("openbox"));
    void killWindowManager();
    void startCompositor();
    void killCompositor();
    void hangServer() const;
    void resumeServer() const;
    void killServer();
    /// Tells the server to have other screens.
    void setScreens(const QStringList& arguments);

private:
    void startServer();
    void hideXInput();
    QStringList serverCommand() const;
    bool isShown(const QString& title) const;
    QString xdotool(const QStringList& arguments) const;

    Options m_options;
    Program m_server;
    Program m_withoutXInput;
    QString m_quibsDisplay; ///< Where it is another one.
    Program m_windowManager;
    Program m_compositor;
    std::unique_ptr<Connection> m_connection;
};
