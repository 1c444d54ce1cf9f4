#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <algorithm>

/// Looked for by a program before and after it saves, so that a trace of it shows where.
constexpr auto SaveBegins = "/a save begins";
constexpr auto SaveHasEnded = "/a save has ended";

/// Which call of a name, counted from 1 in the life of a thread.
struct Call {
    QString name;
    int number = 0;
};

/// Whether a call is a sanitizer's own, in a program that has one. Asked of each call in turn.
class SanitizersCalls {
public:
    bool has(const QString& name)
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        constexpr int CallsOfALook = 4; // At whether memory is there: a pipe, a write, two closes.
        m_left = name == QLatin1StringView("pipe2") ? CallsOfALook : std::max(0, m_left - 1);
        return m_left > 0 || name == QLatin1StringView("mmap")
            || name == QLatin1StringView("munmap"); // Its own memory's: it ends the program.
#else
        return name.isEmpty();
#endif
    }

private:
    [[maybe_unused]] int m_left = 0;
};

/// From what strace wrote down; empty where the save did not end.
inline QList<Call> callsOfASave(const QString& trace)
{
    QMap<QString, int> seen;
    QList<Call> calls;
    bool isSaving = false;
    SanitizersCalls others;
    for (const auto& line : trace.split(QLatin1Char('\n'))) {
        const auto process = line.section(QLatin1Char(' '), 0, 0);
        const auto name
            = line.section(QLatin1Char(' '), 1).trimmed().section(QLatin1Char('('), 0, 0);
        const int number = ++seen[process + name]; // Each thread's are counted by themselves.
        if (line.contains(QLatin1StringView(SaveHasEnded))) {
            return calls;
        }
        const bool isOthers = others.has(name);
        if (isSaving && !isOthers) {
            calls << Call{name, number};
        }
        isSaving = isSaving || line.contains(QLatin1StringView(SaveBegins));
    }
    return {};
}
