#include "platform/linux/session/sessionentry.h"

#include "platform/linux/base/keyfile.h"

namespace quib {

namespace {

const auto Group = QStringLiteral(G_KEY_FILE_DESKTOP_GROUP);
constexpr auto GnomeKey = "X-GNOME-Autostart-enabled";

bool isApplication(const KeyFile& entry)
{
    return entry.firstGroup() == Group
        && entry.text(Group, G_KEY_FILE_DESKTOP_KEY_TYPE)
        == QLatin1StringView(G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
}

bool isInstalled(const char* program)
{
    return GText(g_find_program_in_path(program)) != nullptr;
}

/// An entry may name a second program, without which its own is of no use.
bool isWhatItTriesInstalled(const KeyFile& entry)
{
    const auto program = entry.text(Group, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC);
    return program.isEmpty() || isInstalled(program.toUtf8().constData());
}

bool isProgramInstalled(const KeyFile& entry)
{
    const auto command = entry.text(Group, G_KEY_FILE_DESKTOP_KEY_EXEC).toUtf8();
    gchar** words = nullptr;
    if (g_shell_parse_argv(command.constData(), nullptr, &words, nullptr) == FALSE) {
        return false;
    }
    const GTexts owned(words);
    return isInstalled(words[0]);
}

bool isForThisDesktop(const KeyFile& entry)
{
    const auto only = entry.entryList(Group, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN);
    const auto others = entry.entryList(Group, G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN);
    for (const auto& desktop : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':')) {
        if (only && only->contains(desktop)) {
            return true;
        }
        if (others && others->contains(desktop)) {
            return false;
        }
    }
    return !only;
}

} // namespace

bool startsSomething(const QString& path)
{
    const KeyFile entry(path);
    const bool isSwitchedOff = entry.isOn(Group, G_KEY_FILE_DESKTOP_KEY_HIDDEN)
        || (entry.has(Group, GnomeKey) && !entry.isOn(Group, GnomeKey));
    return entry.isWhole() && isApplication(entry) && !isSwitchedOff
        && isWhatItTriesInstalled(entry) && isProgramInstalled(entry) && isForThisDesktop(entry);
}

} // namespace quib
