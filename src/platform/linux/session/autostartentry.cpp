#include "platform/linux/session/autostartentry.h"

#include "model/file/atomicfile.h"
#include "model/file/privatefolder.h"
#include "model/texts/nativepath.h"
#include "platform/linux/base/gowned.h"
#include "platform/linux/session/sessionentry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto FileName = "autostart/org.korvel.Quib.desktop"_L1;
constexpr auto Group = G_KEY_FILE_DESKTOP_GROUP;
constexpr auto GnomeKey = "X-GNOME-Autostart-enabled";

/// An AppImage runs from a place that changes with each start.
QString installedProgram()
{
    const auto image = qEnvironmentVariable("APPIMAGE");
    return QDir::isAbsolutePath(image) ? image : QCoreApplication::applicationFilePath();
}

QString userFile()
{
    const auto chosen = qEnvironmentVariable("XDG_CONFIG_HOME");
    const auto folder = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + u"/.config"_s;
    return folder + u'/' + FileName;
}

/// The first of the installed files, which counts where the user has none.
std::optional<QString> systemFile()
{
    const auto chosen = qEnvironmentVariable("XDG_CONFIG_DIRS");
    const auto folders = (chosen.isEmpty() ? u"/etc/xdg"_s : chosen).split(u':');
    for (const auto& folder : folders) {
        auto path = folder + u'/' + FileName;
        if (QDir::isAbsolutePath(folder) && QFileInfo(path).isFile()) {
            return path;
        }
    }
    return std::nullopt;
}

/// The text with a backslash in front of each of these characters.
QString escaped(const QString& text, QStringView characters)
{
    QString result;
    for (const auto character : text) {
        if (characters.contains(character)) {
            result += u'\\';
        }
        result += character;
    }
    return result;
}

QString quoted(const QString& argument)
{
    return u'"' + escaped(argument, u"\"`$\\").replace(u'%', u"%%"_s) + u'"';
}

/// Desktops read "%%" in arguments only, never in the name of the program itself.
QString commandFor(const QString& program)
{
    const auto wrapper = program.contains(u'%') ? u"nice -n 0 "_s : QString();
    return wrapper + quoted(program);
}

GKeyFileOwned makeEntry()
{
    GKeyFileOwned entry(g_key_file_new());
    g_key_file_set_string(entry.get(), Group, G_KEY_FILE_DESKTOP_KEY_TYPE,
                          G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
    g_key_file_set_string(entry.get(), Group, G_KEY_FILE_DESKTOP_KEY_NAME, "Korvel Quib");
    return entry;
}

QByteArray bytesOf(GKeyFile* entry)
{
    return GText(g_key_file_to_data(entry, nullptr, nullptr)).get();
}

QByteArray entryFor(const QString& program)
{
    const auto entry = makeEntry();
    g_key_file_set_string(entry.get(), Group, G_KEY_FILE_DESKTOP_KEY_ICON, "org.korvel.Quib");
    g_key_file_set_string(entry.get(), Group, G_KEY_FILE_DESKTOP_KEY_EXEC,
                          commandFor(program).toUtf8().constData());
    g_key_file_set_boolean(entry.get(), Group, GnomeKey, TRUE);
    return bytesOf(entry.get());
}

QByteArray hiddenEntry()
{
    const auto entry = makeEntry();
    g_key_file_set_boolean(entry.get(), Group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, TRUE);
    return bytesOf(entry.get());
}

/// A link would be written through, into a file that belongs to somebody else.
bool write(const QString& path, const QByteArray& entry)
{
    if (QFileInfo(path).isSymLink() && !QFile::remove(path)) {
        return false;
    }
    const auto file = nativePath(path);
    return makePrivateFolder(file.parent_path()) && replaceFile(file, entry, NewFile::Usual);
}

bool remove(const QString& path)
{
    const QFileInfo file(path);
    return (!file.isFile() && !file.isSymLink()) || QFile::remove(path);
}

} // namespace

AutostartEntry::AutostartEntry()
    : AutostartEntry(installedProgram())
{
}

AutostartEntry::AutostartEntry(QString program)
    : m_program(std::move(program))
{
}

bool AutostartEntry::isEnabled() const
{
    if (QFileInfo(userFile()).isFile()) {
        return startsSomething(userFile());
    }
    const auto installed = systemFile();
    return installed && startsSomething(*installed);
}

bool AutostartEntry::enable()
{
    return write(userFile(), entryFor(m_program)) && isEnabled();
}

bool AutostartEntry::disable()
{
    if (systemFile()) {
        return write(userFile(), hiddenEntry()) && !isEnabled();
    }
    return remove(userFile());
}

} // namespace quib
