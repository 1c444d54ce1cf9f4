#pragma once

#include "model/billing/totals.h"
#include "model/file/dataloader.h"
#include "model/file/datasaver.h"
#include "model/locale/userlocale.h"
#include "model/records/quibdata.h"
#include "model/time/clock.h"
#include "model/time/scheduler.h"

#include <QObject>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace quib {

/// What the store needs of the world around it. The defaults are the real ones.
struct StoreSurroundings {
    Clock clock = systemClock;
    Scheduler schedule = scheduleOnMainLoop;
    /// Full path of the installed application of that unlocalised name, or absent. Asked only to
    /// build the sample data, on the thread that loads.
    std::function<std::optional<QString>(const QString& name)> findApplication;
    UserLocale locale = UserLocale::fromEnvironment();
    /// Makes the calling thread one of utility priority: the one that saves.
    std::function<void()> enterBackground = [] {};
};

/// The one owner of the workspace, on the main thread. Every operation changes it in one step,
/// announces what changed, and has it saved 0.4 s after the last change.
/// It is loaded on another thread, or at the first use: whoever asks for it or changes it before
/// that is done waits. Ids may repeat in a file that a hand edited: a look-up or a toggle means the
/// first, a deletion all of them.
class Store : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasRunningEntry READ hasRunningEntry NOTIFY entriesChanged)
    Q_PROPERTY(QDateTime runningSince READ runningSince NOTIFY entriesChanged)
    Q_PROPERTY(QString notes READ notes WRITE setNotes NOTIFY notesChanged)

public:
    using Surroundings = StoreSurroundings;

    explicit Store(Surroundings surroundings = {}, QObject* parent = nullptr);

    /// Begins to load data.json from the data folder, else to build sample data, on a thread that
    /// competes for the processor. Never fails.
    void beginLoading() { m_loader.begin(); }

    /// The data folder, made with its parents each time it is asked for; a failure to make it shows
    /// in the use of it.
    static std::filesystem::path folder();

    QDateTime now() const { return m_surroundings.clock(); }
    const UserLocale& locale() const { return m_surroundings.locale; }

    const QuibData& data() const;
    void setData(const QuibData& data);

    /// The first client of that id; absent when there is none, or no id.
    std::optional<Client> client(const std::optional<QUuid>& id) const;
    QString notes() const { return data().notes; }
    std::optional<TimeEntry> runningEntry() const;
    /// At no cost: asked 60 times a second. Never waits: while the workspace is being loaded no
    /// timer runs, and afterwards a change of the entries is announced when one does.
    bool hasRunningEntry() const { return m_runningRow >= 0; }
    QDateTime runningSince() const; ///< Invalid when no timer runs.
    /// The time worked per client since then, most first. Cheap to ask again at every tick.
    QList<ClientTotal> totals(const QDateTime& since) const;

    /// The id of the new client, for the caller to open it for editing.
    Q_INVOKABLE QUuid addClient();
    /// Its tasks and entries stay, and show as having no client.
    Q_INVOKABLE void deleteClient(const QUuid& id);
    /// Replaces the first client of that id; unknown ids change nothing.
    void updateClient(const Client& client);
    /// Blanks around the title are cut off; without anything else there is no task, and false.
    Q_INVOKABLE bool addTask(const QString& title, const std::optional<QUuid>& client);
    Q_INVOKABLE void toggleTask(const QUuid& id);
    Q_INVOKABLE void deleteTask(const QUuid& id);
    Q_INVOKABLE void clearDoneTasks();
    /// Each new file goes to the front. Addresses that are no files are passed over.
    Q_INVOKABLE void addToShelf(const QList<QUrl>& urls);
    Q_INVOKABLE void removeFromShelf(const QUuid& id); ///< The file itself stays.
    Q_INVOKABLE void clearShelf(); ///< The files themselves stay.
    /// Goes to the end.
    void addLaunchItem(const LaunchItem& item);
    Q_INVOKABLE void removeLaunchItem(const QUuid& id);
    void setNotes(const QString& notes);
    /// Ends the running timer first, with the rule of stopTimer().
    Q_INVOKABLE void startTimer(const std::optional<QUuid>& client, const QString& note);
    /// A timer that ran for less than 30 s leaves no trace.
    Q_INVOKABLE void stopTimer();
    /// Where the timesheet was written; absent when it could not be.
    std::optional<QUrl> exportTimesheet() const;

    /// Removes what saves that were killed have left. For the one program that uses the folder.
    static void removeLeftovers();
    void scheduleSave();
    /// Writes at once what is not on disk yet; waits for a write in progress first, but not for the
    /// loading: who has loaded nothing has changed nothing.
    void saveNow();

Q_SIGNALS:
    void clientsChanged();
    void tasksChanged();
    void entriesChanged();
    void shelfChanged();
    void launchChanged();
    void notesChanged();

private:
    using Signal = void (Store::*)();

    void tellOfTimer();
    void awaitData() const;
    QuibData& workspace(); ///< To be changed.
    void announce(Signal changed);
    bool endRunningEntry(); ///< False when no timer runs. Announces nothing.
    void entriesWereReplaced() const;

    Surroundings m_surroundings;
    mutable QuibData m_data; ///< Empty until it was waited for.
    mutable qsizetype m_runningRow = -1; ///< Of the first entry that runs; -1 without one.
    mutable std::vector<Tally> m_tallies; ///< Of the entries as they are, for moments asked about.
    DataSaver m_saver;
    mutable DataLoader m_loader;
};

} // namespace quib
