#include "platform/linux/launch/gioappcatalog.h"

#include "platform/linux/base/gowned.h"
#include "platform/linux/base/keyfile.h"

#include <QCollator>
#include <QFile>
#include <QFileInfo>

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <functional>

namespace quib {

namespace {

QString pathOf(GDesktopAppInfo* entry)
{
    return QFile::decodeName(g_desktop_app_info_get_filename(entry));
}

/// Calls with each entry that the user may see and that lies in a file.
void forEachVisible(const std::function<void(GDesktopAppInfo*)>& call)
{
    auto* const applications = g_app_info_get_all();
    for (auto* link = applications; link != nullptr; link = link->next) {
        if (!G_IS_DESKTOP_APP_INFO(link->data) || !g_app_info_should_show(G_APP_INFO(link->data))) {
            continue;
        }
        auto* entry = G_DESKTOP_APP_INFO(link->data);
        if (g_desktop_app_info_get_filename(entry) != nullptr) {
            call(entry);
        }
    }
    g_list_free_full(applications, g_object_unref);
}

/// Of two applications with one name the first path counts: GIO's own order is by chance.
void keepFirst(QHash<QString, QString>& pathOfName, const QString& name, const QString& path)
{
    const auto known = pathOfName.constFind(name);
    if (known == pathOfName.cend() || path < *known) {
        pathOfName.insert(name, path);
    }
}

QHash<QString, QString> listNames()
{
    QHash<QString, QString> pathOfName;
    forEachVisible([&pathOfName](GDesktopAppInfo* entry) {
        // Never the translated one.
        const GText name(g_desktop_app_info_get_string(entry, G_KEY_FILE_DESKTOP_KEY_NAME));
        if (name) {
            keepFirst(pathOfName, QString::fromUtf8(name.get()), pathOf(entry));
        }
    });
    return pathOfName;
}

QString pathOf(GFileIcon* icon)
{
    const GText path(g_file_get_path(g_file_icon_get_file(icon)));
    return QFile::decodeName(path.get());
}

QString textOf(GIcon* icon)
{
    if (G_IS_FILE_ICON(icon)) {
        return pathOf(G_FILE_ICON(icon));
    }
    if (!G_IS_THEMED_ICON(icon)) {
        return {};
    }
    const auto* const* names = g_themed_icon_get_names(G_THEMED_ICON(icon));
    return QString::fromUtf8(names[0]);
}

Application applicationOf(GDesktopAppInfo* entry)
{
    auto* info = G_APP_INFO(entry);
    return {.path = pathOf(entry),
            .name = QString::fromUtf8(g_app_info_get_display_name(info)),
            .icon = textOf(g_app_info_get_icon(info))};
}

/// By name, and where names are equal by path, so that the order is always the same.
void sortForTheUser(QList<Application>& list)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(list, [&collator](const Application& left, const Application& right) {
        const auto order = collator.compare(left.name, right.name);
        return order == 0 ? left.path < right.path : order < 0;
    });
}

} // namespace

std::optional<QString> GioAppCatalog::applicationNamed(const QString& name) const
{
    if (!m_pathOfName) {
        m_pathOfName = listNames();
    }
    const auto found = m_pathOfName->constFind(name);
    return found == m_pathOfName->cend() ? std::nullopt : std::optional(*found);
}

/// Reads the file alone: GIO's own list of entries may be locked by who waits for a slow one.
QString GioAppCatalog::nameOf(const QString& path) const
{
    const auto name = KeyFile(path).textInOurLanguage(QLatin1String(G_KEY_FILE_DESKTOP_GROUP),
                                                      G_KEY_FILE_DESKTOP_KEY_NAME);
    return name.isEmpty() ? QFileInfo(path).completeBaseName() : name;
}

QList<Application> GioAppCatalog::applications() const
{
    QList<Application> list;
    forEachVisible([&list](GDesktopAppInfo* entry) { list << applicationOf(entry); });
    sortForTheUser(list);
    return list;
}

} // namespace quib
