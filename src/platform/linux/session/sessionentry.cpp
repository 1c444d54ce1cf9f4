#include "platform/linux/session/sessionentry.h"

#include "model/file/wholefile.h"
#include "model/texts/nativepath.h"
#include "platform/linux/base/gowned.h"

#include <QStringList>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Group = G_KEY_FILE_DESKTOP_GROUP;
constexpr auto GnomeKey = "X-GNOME-Autostart-enabled";
constexpr qsizetype LargestEntry = 1'000'000;

/// Absent when there is no such file, or it is none of this form.
GKeyFileOwned readFile(const QString& path)
{
    GKeyFileOwned file(g_key_file_new());
    const auto bytes = wholeFile(nativePath(path), LargestEntry);
    const bool isRead = bytes
        && g_key_file_load_from_data(file.get(), bytes->constData(),
                                     static_cast<gsize>(bytes->size()), G_KEY_FILE_NONE, nullptr);
    return isRead ? std::move(file) : nullptr;
}

/// Null when it is missing.
GText textIn(GKeyFile* entry, const char* key)
{
    return GText(g_key_file_get_string(entry, Group, key, nullptr));
}

std::optional<QStringList> listIn(GKeyFile* entry, const char* key)
{
    const GTexts texts(g_key_file_get_string_list(entry, Group, key, nullptr, nullptr));
    if (!texts) {
        return std::nullopt;
    }
    QStringList list;
    for (auto** text = texts.get(); *text != nullptr; ++text) {
        list << QString::fromUtf8(*text);
    }
    return list;
}

bool isOn(GKeyFile* entry, const char* key)
{
    return g_key_file_get_boolean(entry, Group, key, nullptr) == TRUE;
}

bool isApplication(GKeyFile* entry)
{
    const GText group(g_key_file_get_start_group(entry));
    const auto type = textIn(entry, G_KEY_FILE_DESKTOP_KEY_TYPE);
    return qstrcmp(group.get(), Group) == 0
        && qstrcmp(type.get(), G_KEY_FILE_DESKTOP_TYPE_APPLICATION) == 0;
}

bool isInstalled(const char* program)
{
    return GText(g_find_program_in_path(program)) != nullptr;
}

/// An entry may name a second program, without which its own is of no use.
bool isWhatItTriesInstalled(GKeyFile* entry)
{
    const auto program = textIn(entry, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC);
    return qstrlen(program.get()) == 0 || isInstalled(program.get());
}

bool isProgramInstalled(GKeyFile* entry)
{
    const auto command = textIn(entry, G_KEY_FILE_DESKTOP_KEY_EXEC);
    gchar** words = nullptr;
    if (!command || g_shell_parse_argv(command.get(), nullptr, &words, nullptr) == FALSE) {
        return false;
    }
    const GTexts owned(words);
    return isInstalled(words[0]);
}

bool isForThisDesktop(GKeyFile* entry)
{
    const auto only = listIn(entry, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN);
    const auto others = listIn(entry, G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN);
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
    const auto file = readFile(path);
    auto* const entry = file.get();
    if (entry == nullptr || !isApplication(entry) || isOn(entry, G_KEY_FILE_DESKTOP_KEY_HIDDEN)) {
        return false;
    }
    const bool isSwitchedOff
        = g_key_file_has_key(entry, Group, GnomeKey, nullptr) == TRUE && !isOn(entry, GnomeKey);
    return !isSwitchedOff && isWhatItTriesInstalled(entry) && isProgramInstalled(entry)
        && isForThisDesktop(entry);
}

} // namespace quib
