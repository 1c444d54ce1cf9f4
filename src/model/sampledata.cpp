#include "model/sampledata.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

struct SampleApplication {
    QString label;
    QString name;
};

Client sampleClient(const QString& name, ClientStatus status, const QString& notes = {})
{
    return {.id = QUuid::createUuid(),
            .name = name,
            .status = status,
            .hourlyRate = 35,
            .notes = notes};
}

TaskItem sampleTask(const QString& title, const std::optional<QUuid>& client, const QDateTime& now)
{
    return {.id = QUuid::createUuid(), .title = title, .clientID = client, .created = now};
}

LaunchItem sampleLaunch(const QString& name, const QString& target)
{
    return {.id = QUuid::createUuid(), .name = name, .target = target};
}

std::optional<QString> pathOf(const QString& application, const ApplicationFinder& findApplication,
                              const QString& bundles)
{
    const auto bundle = u"%1/%2.app"_s.arg(bundles, application);
    if (QFileInfo::exists(bundle)) {
        return bundle;
    }
    return findApplication ? findApplication(application) : std::nullopt;
}

QList<LaunchItem> sampleLaunches(const ApplicationFinder& findApplication, const QString& bundles)
{
    const QList<SampleApplication> applications{{u"VS Code"_s, u"Visual Studio Code"_s},
                                                {u"Canva"_s, u"Canva"_s},
                                                {u"Notion"_s, u"Notion"_s},
                                                {u"Slack"_s, u"Slack"_s},
                                                {u"WhatsApp"_s, u"WhatsApp"_s}};
    QList<LaunchItem> launches{sampleLaunch(u"Gmail"_s, u"https://mail.google.com"_s),
                               sampleLaunch(u"Calendar"_s, u"https://calendar.google.com"_s)};
    for (const auto& [label, name] : applications) {
        if (const auto path = pathOf(name, findApplication, bundles)) {
            launches << sampleLaunch(label, *path);
        }
    }
    return launches;
}

} // namespace

QuibData sampleData(const QDateTime& now, const ApplicationFinder& findApplication,
                    const QString& bundles)
{
    QuibData data;
    data.clients = {sampleClient(u"Corner Café"_s, ClientStatus::Build,
                                 u"Example client. Edit or delete me."_s),
                    sampleClient(u"Northside Barbers"_s, ClientStatus::Design),
                    sampleClient(u"Bloom Florist"_s, ClientStatus::Lead)};
    data.launch = sampleLaunches(findApplication, bundles);
    data.tasks
        = {sampleTask(u"Send Corner Café the homepage preview"_s, data.clients.front().id, now),
           sampleTask(u"Tick this off to try it"_s, {}, now)};
    return data;
}

} // namespace quib
