#pragma once

#include <QString>
#include <QStringList>

namespace quib {

/// What the arguments ask for.
struct CommandLine {
    enum class Action { Start, Snapshot, Help, Version };

    Action action = Action::Start;
    QString folder; ///< Of a snapshot.

    bool operator==(const CommandLine&) const = default;
};

/// Reads the arguments that follow the program's name. A snapshot with its folder comes before
/// everything else; what is not known is passed over.
CommandLine parseArguments(const QStringList& arguments);

QString helpText();
QString versionText();

} // namespace quib
