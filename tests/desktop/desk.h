#pragma once

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QPoint>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

using Program = std::unique_ptr<QProcess>;

/// A desktop of the test's own: an X server, a window manager, a session bus and a home, with the
/// real program on it. Everything ends with the desk. Waits give up after some seconds; the test
/// fails where it looks at what did not come.
class Desk {
public:
    struct Options {
        bool compositor = false;
        bool sessionBus = true;
        int scale = 1;
        bool outputs = false; ///< DUMMY0 to DUMMY3, which can have other sizes and be off.
    };

    // Where things are on this screen of 1600 by 900 points at scale 1.
    static constexpr QPoint Notch{800, 4};
    static constexpr QPoint InTheCard{800, 200};
    static constexpr QPoint FarAway{300, 700};
    static constexpr QPoint TaskField{600, 60};
    static constexpr QPoint BesideTheNotch{660, 25};
    static constexpr QPoint Pin{1102, 23};

    struct Connection;

    explicit Desk(Options options);
    Desk();
    ~Desk();

    QString folder(const QString& name) const { return m_home.filePath(name); }
    QString dataFolder() const { return folder(QStringLiteral("data")); }
    void writeData(const QByteArray& json) const;
    /// What data.json holds; empty while there is none.
    QJsonObject data() const;
    /// The titles of the tasks in data.json.
    QStringList savedTasks() const;
    QString variable(const QString& name) const { return m_environment.value(name); }
    void setVariable(const QString& name, const QString& value);

    /// Starts Quib, by the words before its name if there are any, and waits for its panel.
    Program startQuib(QStringList command = {}, const QStringList& arguments = {});
    Program start(const QString& program, const QStringList& arguments = {});
    /// Starts Quib and waits for its end; its exit status, or -1 when it did not end.
    int runQuib(const QStringList& arguments = {});
    /// A window that covers the screen and tells what reaches it.
    Program startListener();
    static QString dragSource();
    static QString quib();

    void moveTo(QPoint point) const;
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
    void startBus(); ///< At the same address each time.
    void hangBus() const;
    void resumeBus() const;
    void killBus();
    /// Somebody whose name starts so.
    bool isOnBus(const QString& start) const;
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
    QStringList serverCommand() const;
    bool isShown(const QString& title) const;
    QString xdotool(const QStringList& arguments) const;

    Options m_options;
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    Program m_server;
    Program m_bus;
    Program m_windowManager;
    Program m_compositor;
    std::unique_ptr<Connection> m_connection;
};

/// What a program has printed so far, added to what it had printed before.
class Output {
public:
    explicit Output(QProcess& program)
        : m_program(program)
    {
    }

    /// How often a line holds the word.
    qsizetype count(const QByteArray& word);
    void forget();

private:
    QProcess& m_program;
    QByteArray m_text;
};
