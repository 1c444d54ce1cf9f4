#include "platform/linux/gioappcatalog.h"

#include <gio/gdesktopappinfo.h>

#include <memory>

namespace quib {

namespace {

struct GFreed {
    void operator()(gpointer memory) const { g_free(memory); }
};

using GText = std::unique_ptr<gchar, GFreed>;

/// Of two applications with one name the first path counts: GIO's own order is by chance.
void keepFirst(QHash<QString, QString>& pathOfName, const QString& name, const QString& path)
{
    const auto known = pathOfName.constFind(name);
    if (known == pathOfName.cend() || path < *known) {
        pathOfName.insert(name, path);
    }
}

void addVisible(QHash<QString, QString>& pathOfName, GAppInfo* application)
{
    if (!G_IS_DESKTOP_APP_INFO(application) || !g_app_info_should_show(application)) {
        return;
    }
    auto* entry = G_DESKTOP_APP_INFO(application);
    const GText name(g_desktop_app_info_get_string(entry, "Name")); // Never the translated one.
    const auto* path = g_desktop_app_info_get_filename(entry);
    if (name && path != nullptr) {
        keepFirst(pathOfName, QString::fromUtf8(name.get()), QString::fromLocal8Bit(path));
    }
}

QHash<QString, QString> listApplications()
{
    QHash<QString, QString> pathOfName;
    auto* applications = g_app_info_get_all();
    for (auto* link = applications; link != nullptr; link = link->next) {
        addVisible(pathOfName, G_APP_INFO(link->data));
    }
    g_list_free_full(applications, g_object_unref);
    return pathOfName;
}

} // namespace

std::optional<QString> GioAppCatalog::applicationNamed(const QString& name) const
{
    if (!m_pathOfName) {
        m_pathOfName = listApplications();
    }
    const auto found = m_pathOfName->constFind(name);
    return found == m_pathOfName->cend() ? std::nullopt : std::optional(*found);
}

std::optional<QString> GioAppCatalog::firstInstalled(const QStringList& /*ids*/) const
{
    return std::nullopt;
}

QList<Application> GioAppCatalog::applications() const
{
    return {};
}

} // namespace quib
