#include "platform/linux/launch/giolaunch.h"

#include "platform/linux/launch/launchcontext.h"

#include <QByteArrayView>

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <array>
#include <atomic>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quib {

namespace {

constexpr auto PlainText = "text/plain";

// GIO's own is of the process too.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<GDBusConnection*> keptBus = nullptr;

constexpr QByteArrayView ElfMagic("\x7f"
                                  "ELF");

bool isFile(const QByteArray& path)
{
    struct stat facts { };
    return stat(path.constData(), &facts) == 0 && S_ISREG(facts.st_mode);
}

bool isDesktopEntry(const QByteArray& path)
{
    return path.endsWith(".desktop") && isFile(path);
}

QByteArray startOf(const QByteArray& path, qsizetype length)
{
    QByteArray bytes(length, '\0');
    const int file = open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return {};
    }
    bytes.truncate(std::max<ssize_t>(0, read(file, bytes.data(), std::size_t(length))));
    close(file);
    return bytes;
}

/// A compiled program or an AppImage. Scripts are documents, and so is a picture on a disk on which
/// everything may be executed.
bool isProgram(const QByteArray& path)
{
    return isFile(path) && access(path.constData(), X_OK) == 0
        && startOf(path, ElfMagic.size()) == ElfMagic;
}

/// Keeps the connection that GIO makes for every entry: a lost one would end us, and what was asked
/// over one that is closed is forgotten. No thread waits here for another.
bool keepBus()
{
    GOwned<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!bus) {
        return false;
    }
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    if (g_dbus_connection_is_closed(bus.get()) != FALSE) {
        return false; // Somebody else has kept it too long.
    }
    const GOwned<GDBusConnection> before(keptBus.exchange(bus.release()));
    return true;
}

/// GIO complains about a context of ours when an application on the bus does not answer.
GOwned<GAppLaunchContext> contextFor(GDesktopAppInfo* application)
{
    const bool isOnBus = keepBus()
        && g_desktop_app_info_get_boolean(application, G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE);
    return isOnBus ? nullptr : makeLaunchContext();
}

/// Of an application that may be absent; without an address it just starts.
void launch(GAppInfo* application, const char* address)
{
    if (!G_IS_DESKTOP_APP_INFO(application)) {
        return;
    }
    auto* const entry = G_DESKTOP_APP_INFO(application);
    const auto context = contextFor(entry);
    GList* addresses
        = address == nullptr ? nullptr : g_list_append(nullptr, const_cast<char*>(address));
    g_desktop_app_info_launch_uris_as_manager(entry, addresses, context.get(), G_SPAWN_SEARCH_PATH,
                                              standAlone, nullptr, nullptr, nullptr, nullptr);
    g_list_free(addresses);
}

/// GIO reads entries under a lock that the whole program needs, so a dead disk has to hang here.
void launchEntry(const QByteArray& entry)
{
    if (startOf(entry, 1).isEmpty()) {
        return;
    }
    const GOwned<GDesktopAppInfo> application(
        g_desktop_app_info_new_from_filename(entry.constData()));
    launch(G_APP_INFO(application.get()), nullptr);
}

GText addressOf(const QByteArray& path)
{
    const GOwned<GFile> file(g_file_new_for_path(path.constData()));
    return GText(g_file_get_uri(file.get()));
}

void runProgram(const char* program, const char* argument)
{
    const auto context = makeLaunchContext();
    std::array<char*, 3> arguments{const_cast<char*>(program), const_cast<char*>(argument),
                                   nullptr};
    auto** const environment = g_app_launch_context_get_environment(context.get());
    g_spawn_async(nullptr, arguments.data(), environment, G_SPAWN_DEFAULT, standAlone, nullptr,
                  nullptr, nullptr);
    g_strfreev(environment);
}

/// Absent for what does not exist.
GText typeOf(GFile* file)
{
    const GOwned<GFileInfo> facts(g_file_query_info(file, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                    G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    return GText(facts ? g_strdup(g_file_info_get_content_type(facts.get())) : nullptr);
}

GOwned<GAppInfo> defaultForFile(GFile* file)
{
    const auto type = typeOf(file);
    const auto takesAddresses = !g_file_is_native(file);
    return GOwned<GAppInfo>(type ? g_app_info_get_default_for_type(type.get(), takesAddresses)
                                 : nullptr);
}

/// A scheme without an application of its own may still lead to a folder, as "trash:///" does.
GOwned<GAppInfo> defaultForAddress(const QByteArray& address)
{
    const GText scheme(g_uri_parse_scheme(address.constData()));
    GOwned<GAppInfo> application(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get())
                                        : nullptr);
    if (application) {
        return application;
    }
    const GOwned<GFile> file(g_file_new_for_uri(address.constData()));
    return defaultForFile(file.get());
}

bool needsTerminal(GAppInfo* application)
{
    return G_IS_DESKTOP_APP_INFO(application)
        && g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(application),
                                          G_KEY_FILE_DESKTOP_KEY_TERMINAL);
}

GOwned<GAppInfo> firstEditorWithWindow()
{
    auto* const editors = g_app_info_get_all_for_type(PlainText);
    GOwned<GAppInfo> first;
    for (auto* link = editors; link != nullptr && !first; link = link->next) {
        if (!needsTerminal(G_APP_INFO(link->data))) {
            first.reset(G_APP_INFO(g_object_ref(link->data)));
        }
    }
    g_list_free_full(editors, g_object_unref);
    return first;
}

GOwned<GAppInfo> textEditor()
{
    GOwned<GAppInfo> chosen(g_app_info_get_default_for_type(PlainText, FALSE));
    if (!chosen || !needsTerminal(chosen.get())) {
        return chosen;
    }
    auto other = firstEditorWithWindow();
    return other ? std::move(other) : std::move(chosen);
}

/// False where the candidate is not installed.
bool launchWith(const QByteArray& path, const QByteArray& candidate)
{
    if (!candidate.endsWith(".desktop")) {
        const GText program(g_find_program_in_path(candidate.constData()));
        if (program) {
            runProgram(program.get(), path.constData());
        }
        return program != nullptr;
    }
    const GOwned<GDesktopAppInfo> entry(g_desktop_app_info_new(candidate.constData()));
    launch(G_APP_INFO(entry.get()), addressOf(path).get());
    return entry != nullptr;
}

} // namespace

void forgetBus()
{
    const GOwned<GDBusConnection> forgotten(keptBus.exchange(nullptr));
}

void launchPath(const QByteArray& path)
{
    if (isDesktopEntry(path)) {
        launchEntry(path);
    } else if (isProgram(path)) {
        runProgram(path.constData(), nullptr);
    } else {
        const GOwned<GFile> file(g_file_new_for_path(path.constData()));
        launch(defaultForFile(file.get()).get(), addressOf(path).get());
    }
}

void launchAddress(const QByteArray& address)
{
    launch(defaultForAddress(address).get(), address.constData());
}

void launchWithFirst(const QByteArray& path, const QByteArrayList& candidates)
{
    const bool isOpen = std::ranges::any_of(
        candidates, [&path](const QByteArray& candidate) { return launchWith(path, candidate); });
    if (!isOpen) {
        launchPath(path);
    }
}

void launchInTextEditor(const QByteArray& path)
{
    launch(textEditor().get(), addressOf(path).get());
}

} // namespace quib
