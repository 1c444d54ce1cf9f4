#pragma once

#include "desktop/desk/places.h"

#include <QJsonObject>
#include <QPoint>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>

using Program = std::unique_ptr<QProcess>;

/// What every desktop of a test's own has, whatever shows it: a home, a runtime and a data folder,
/// a session bus, and the programs that run there with nothing of the user's around them.
class DeskHome {
public:
    enum class Owner {
        Us,
        NotRoot, ///< Where we are root, nobody: some programs refuse root.
    };

    // Where things are on a screen of 1600 by 900 points at scale 1.
    static constexpr QPoint Notch = places::Notch;
    static constexpr QPoint InTheCard = places::InTheCard;
    static constexpr QPoint FarAway = places::FarAway;
    static constexpr QPoint TaskField = places::TaskField;
    static constexpr QPoint BesideTheNotch = places::BesideTheNotch;
    static constexpr QPoint Pin = places::Pin;

    DeskHome(const DeskHome&) = delete;
    DeskHome& operator=(const DeskHome&) = delete;

    QString folder(const QString& name) const { return m_home.filePath(name); }
    QString dataFolder() const { return folder(QStringLiteral("data")); }
    void writeData(const QByteArray& json) const;
    /// What data.json holds; empty while there is none.
    QJsonObject data() const;
    /// The titles of the tasks in data.json.
    QStringList savedTasks() const;
    QString variable(const QString& name) const { return m_environment.value(name); }
    void setVariable(const QString& name, const QString& value);

    Program start(const QString& program, const QStringList& arguments = {}) const;
    /// Starts Quib and waits for its end; its exit status, or -1 when it did not end.
    int runQuib(const QStringList& arguments = {}) const;
    static QString quib();

    void startBus(); ///< At the same address each time.
    void hangBus() const;
    void resumeBus() const;
    void killBus();
    QString busAddress() const
    {
        return m_environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    }
    /// Somebody whose name starts so.
    bool isOnBus(const QString& beginning) const;

protected:
    explicit DeskHome(Owner owner = Owner::Us);
    ~DeskHome(); ///< Ends the bus.

    /// Asks it to end, whatever it waits for, and waits for that.
    static void end(const Program& program);
    static void killNow(Program& program);
    const QProcessEnvironment& environment() const { return m_environment; }
    /// Makes what we have written there, and the folders that it lies in, the owner's.
    void handOver(const QString& path) const;

private:
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    std::optional<uint> m_user; ///< Where it is not ours.
    Program m_bus;
};

/// Looks again and again, for ten seconds at most; then says what did not come.
bool waitFor(const char* what, const std::function<bool()>& isSo);

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
