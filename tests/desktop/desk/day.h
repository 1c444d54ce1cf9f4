#pragma once

#include "desktop/desk/partners.h"
#include "desktop/desk/recorder.h"

#include <QJsonArray>
#include <QJsonObject>

/// A desk with a player, a calendar and a browser, and what a hand does there on the open card.
/// Each deed waits until it is on disk.
class Day : public Desk {
public:
    enum Tab { Home, Links, Clients, Tasks, Time, Shelf, Notes };

    // Where things are in the open card.
    static constexpr QPoint Site{790, 112};
    static constexpr QPoint Rate{1090, 112};
    static constexpr QPoint ClientNotes{900, 235};
    static constexpr QPoint OpenSite{735, 174};
    static constexpr QPoint LeftWing{630, 3};
    static constexpr QColor Popup{30, 27, 38};

    Day();

    void begin();
    void restart();
    void quitByKey();
    /// Opens a tab, and leaves the bar, so that no tip of it lies over the card.
    void goTo(Tab tab) const;
    /// Waits until something is drawn there.
    void clickWhenThere(QPoint point) const;

    QByteArray bytes() const; ///< Of data.json.
    QJsonArray saved(const QString& list) const { return data()[list].toArray(); }
    /// What was opened last.
    QString opened() const { return m_recorder.openedLast(); }
    QString heard() { return playbackOf(*this); }

    /// Files from a window at the lower left, onto the collapsed notch.
    void dropFiles(const QStringList& paths);

    // On the home tab.
    void connectCalendar() const;
    void pressPlay(const QString& thenHeard);
    /// A website of that address comes for the first one.
    void exchangeLaunches(const QString& address) const;

    // On the shelf, whose files lie side by side.
    void openFile(int place) const;
    void takeFromShelf(int place) const;

    // On the clients tab.
    void addClient(const QString& name) const;
    void chooseStatus(const QStringList& keys, const QString& status) const;
    void fillIn(QPoint field, const QString& text, const QString& member,
                const QJsonValue& value) const;
    void deleteClient(int row) const;
    void trackForAMoment(int row) const;

    // On the tasks tab.
    void addTask(const QString& title) const;
    void chooseClientOfTasks(const QStringList& keys) const;
    void tick(int row, const QString& title) const;
    void removeTask(int row) const;
    void clearDone() const;

    // On the time tab.
    void chooseClientOfTimer(const QStringList& keys) const;
    void startTimer(const QString& note) const;
    void stopTimer() const;

    // On the notes tab.
    void writeNotes(const QStringList& lines) const;
    void stampNotes() const;

private:
    void press(const QStringList& keys) const;
    void openMenu(QPoint button, QPoint inTheMenu) const;

    Recorder m_recorder;
    Program m_player;
    Program m_quib;
};
