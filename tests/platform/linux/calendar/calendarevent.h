#pragma once

#include <QByteArray>
#include <QDate>
#include <QStringList>

inline const QDate Monday(2026, 3, 2);

/// An event as calendar files have it, with its times and whatever else as lines.
inline QByteArray vevent(const QByteArray& uid, const QByteArray& title, const QByteArray& lines)
{
    return "BEGIN:VEVENT\nUID:" + uid + "\nDTSTAMP:20260101T000000Z\n"
        + (title.isEmpty() ? QByteArray() : "SUMMARY:" + title + "\n") + lines + "\nEND:VEVENT\n";
}

/// On that Monday.
inline const QByteArray Call = vevent("call", "Call", "DTSTART:20260302T120000Z\nDURATION:PT30M");
inline const QStringList ShownCall{QStringLiteral("02 12:00 - 02 12:30 Call")};
