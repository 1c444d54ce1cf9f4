#pragma once

#include <QByteArray>
#include <QList>

// What a user does in the settings of the screens: those with these numbers, counted from 0, are
// on, side by side from the left, and all others are off. What comes back is why that failed, or
// nothing.
QByteArray setOutputsOfKWin(const QList<int>& numbers);
QByteArray setOutputsOfMutter(const QList<int>& numbers);
