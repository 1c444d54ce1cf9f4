#pragma once

#include <QDBusConnection>
#include <QDate>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

/// A session of its own: folders, a bus on which exactly the given services can start, and a
/// program that reads the calendars.
class CalendarDesk {
public:
    CalendarDesk();
    ~CalendarDesk();
    Q_DISABLE_COPY_MOVE(CalendarDesk)

    static const QString Registry;
    static const QString Factory;
    static const QStringList Processes; ///< Of the factory: what their names start with.
    static const QString PermissionStore;

    QProcessEnvironment environment; ///< Of all programs.

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// A calendar in the user's own files, before the services start.
    void makeCalendar(const QString& id, const QByteArray& events,
                      const QByteArray& color = "#33d17a") const;
    /// One whose file never answers, nor does what reads it; before the services start.
    void makeHungCalendar(const QString& id) const;
    /// Then it answers.
    void endHanging(const QString& id, const QByteArray& events) const;
    /// The events as a file has them, with the zone "Own Zone", three hours before UTC.
    static QByteArray calendarOf(const QByteArray& events);

    /// One that can be started but never answers for its name; before the bus starts.
    void makeServiceThatNeverComes(const QString& name) const;
    /// One that waits so long for services to start.
    void startBus(const QStringList& services = {Registry, Factory, PermissionStore},
                  int startingMs = 20'000);
    void killBus();
    /// Of the test itself.
    QDBusConnection bus() const;
    bool owns(const QString& name) const;
    void startService(const QString& name) const;
    void setPermission(const QString& word) const;
    /// To the processes that own names which start like one of these.
    void signalTo(const QStringList& prefixes, int signal);

    /// The program, with the access it was given by asking for it.
    void startGranted(const QString& plugin = {});
    void start(const QString& plugin = {});
    void send(const QStringList& command);
    /// What follows the command's name in the answer. Empty when there is none.
    QString answerTo(const QStringList& command);
    /// The same of a command that was sent already.
    QString awaited(const QString& word);
    bool hasAnswer(const QString& word);
    /// "02 12:00 - 02 12:30 Call", "*" before what is all day; sorted.
    QStringList read(const QDate& day);
    static QStringList shownIn(const QString& answer);
    int changes(); ///< How often the program was told of changes so far.
    bool quit();
    bool hasLoaded(const QString& library) const;
    int connections() const; ///< Of the program to the bus.
    int threads() const; ///< Of the program.
    QByteArray complaints() { return m_program.readAllStandardError(); }

    /// Changes calendars as another program does.
    bool write(const QStringList& command) const;

private:
    void collect();

    QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_program;
    QStringList m_answers; ///< Not asked for yet.
    int m_changes = 0;
    QList<uint> m_signalled; ///< Services that may be stopped.
};
