#include "platform/linux/autostartentry.h"

#include "model/atomicfile.h"
#include "platform/linux/gowned.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <gio/gdesktopappinfo.h>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto FileName = "autostart/org.korvel.Quib.desktop"_L1;
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

/// A file that is no entry, or whose program is gone, hides the others and starts nothing.
bool startsSomething(const QString& path)
{
    const GOwned<GDesktopAppInfo> entry(
        g_desktop_app_info_new_from_filename(QFile::encodeName(path).constData()));
    if (!entry || g_app_info_get_executable(G_APP_INFO(entry.get())) == nullptr
        || g_desktop_app_info_get_is_hidden(entry.get())) {
        return false;
    }
    const bool isSwitchedOff = g_desktop_app_info_has_key(entry.get(), GnomeKey)
        && !g_desktop_app_info_get_boolean(entry.get(), GnomeKey);
    return !isSwitchedOff && g_desktop_app_info_get_show_in(entry.get(), nullptr);
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

/// Quoted as an argument, and then escaped once more as any text in such a file.
QString quoted(const QString& argument)
{
    auto text = escaped(argument, u"\"`$\\").replace(u'%', u"%%"_s);
    text = u'"' + escaped(text, u"\\") + u'"';
    return text.replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
}

/// Desktops read "%%" in arguments only, never in the name of the program itself.
QString commandFor(const QString& program)
{
    const auto wrapper = program.contains(u'%') ? u"nice -n 0 "_s : QString();
    return wrapper + quoted(program);
}

QByteArray entryFor(const QString& program)
{
    const auto text = u"[Desktop Entry]\n"
                      "Type=Application\n"
                      "Name=Korvel Quib\n"
                      "Icon=org.korvel.Quib\n"
                      "Exec=%1\n"
                      "X-GNOME-Autostart-enabled=true\n"_s;
    return text.arg(commandFor(program)).toUtf8();
}

QByteArray hiddenEntry()
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Korvel Quib\n"
           "Hidden=true\n"_ba;
}

/// A link would be written through, into a file that belongs to somebody else.
bool write(const QString& path, const QByteArray& entry)
{
    if (QFileInfo(path).isSymLink() && !QFile::remove(path)) {
        return false;
    }
    return QDir().mkpath(QFileInfo(path).path()) && replaceFile(path, entry);
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
