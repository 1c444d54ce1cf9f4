#pragma once

#include "desktop/desk/desk.h"

#include <QDateTime>
#include <QStringList>

/// A music player on the desk's bus, with one song that lasts.
Program startPlayer(Desk& desk);
/// What the player says of itself: "Playing", "Paused"; empty while it says nothing.
QString playbackOf(Desk& desk);

/// A calendar of the user's own, green, with events that last the whole of today.
void makeCalendar(const Desk& desk, const QStringList& titles);

struct Meeting {
    QString title;
    QDateTime start;
    QDateTime end;
};

/// Such a calendar with a meeting only.
void makeCalendarWith(const Desk& desk, const Meeting& meeting);

/// From now on no program on the desk's bus shows files in their folders, whatever is installed
/// here.
void hideFileManagers(Desk& desk);

/// What a strict reader finds in a file of comma-separated values; nothing where it finds fault.
QList<QStringList> readStrictly(Desk& desk, const QString& file);
