#include "model/time/utc.h"
#include "pictures/daymaking.h"

using namespace Qt::StringLiterals;
using namespace daymaking;
using quib::ClientStatus;
using quib::Utc;

namespace {

QList<quib::Client> clients()
{
    return {{.id = QUuid::createUuid(),
             .name = u"Corner Café"_s,
             .status = ClientStatus::Build,
             .siteURL = u"corner-cafe.example"_s,
             .folderPath = u"/home/ada/Work/corner-cafe"_s,
             .hourlyRate = 65,
             .notes = u"Wants the menu on the first screen.\nLaunch before Advent: 27 November.\n"
                      "Ask Ada for the new logo."_s},
            {.id = QUuid::createUuid(),
             .name = u"Northside Barbers"_s,
             .status = ClientStatus::Design,
             .hourlyRate = 55},
            {.id = QUuid::createUuid(),
             .name = u"Bloom Florist"_s,
             .status = ClientStatus::Lead,
             .hourlyRate = 50},
            {.id = QUuid::createUuid(),
             .name = u"Harbour Yoga"_s,
             .status = ClientStatus::Review,
             .hourlyRate = 60},
            {.id = QUuid::createUuid(),
             .name = u"Lowe & Daughters Joinery"_s,
             .status = ClientStatus::Live,
             .hourlyRate = 72.5},
            {.id = QUuid::createUuid(),
             .name = u"Riverside Dental"_s,
             .status = ClientStatus::Care,
             .hourlyRate = 40}};
}

QList<quib::TaskItem> tasks(const QList<quib::Client>& clients)
{
    return {task(u"Send the second draft of the menu page"_s, clients[0].id),
            task(u"Call about the booking form"_s, clients[1].id),
            task(u"Write the invoice for October"_s, clients[5].id),
            task(u"Crop the photos of the workshop"_s, clients[4].id),
            task(u"Order business cards"_s),
            task(u"Answer the request for a quote"_s, clients[2].id),
            task(u"Check the timetable on phones"_s, clients[3].id),
            task(u"Move the mailboxes to the new host"_s, clients[5].id),
            task(u"Renew the domain"_s, clients[4].id, true),
            task(u"Sketch three logos"_s, clients[0].id, true),
            task(u"Back up the laptop"_s, {}, true),
            task(u"Ask for opening hours"_s, clients[1].id, true)};
}

QList<quib::TimeEntry> entries(const QList<quib::Client>& clients)
{
    constexpr int DayInMinutes = 24 * 60;
    QList<quib::TimeEntry> entries{
        {.id = QUuid::createUuid(),
         .clientID = clients[0].id,
         .start = Now.addSecs(-(3600 + 23 * 60 + 9)),
         .note = u"Menu page, second draft"_s},
        worked(clients[1].id, 250, 95, u"Booking form"_s),
        worked({}, 330, 25, u"Mail"_s),
    };
    for (int day = 1; day < 18; ++day) {
        const auto& client = clients[day % clients.size()];
        entries << worked(client.id, day * DayInMinutes + 120, 60 + 13 * day)
                << worked(clients[0].id, day * DayInMinutes + 300, 75);
    }
    return entries;
}

QList<quib::ShelfItem> shelf(const QString& folder)
{
    const auto file = [&folder](const QString& name, const QByteArray& bytes) {
        return shelved(writeFile(folder + u'/' + name, bytes));
    };
    QDir(folder).mkdir(u"Photos"_s);
    return {file(u"Quote 2026-114.pdf"_s, "%PDF-1.7\n"),
            file(u"logo.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\"/>"),
            shelved(folder + u"/Photos"_s),
            file(u"Menu, second draft, with the changes of Monday.odt"_s, "PK"),
            shelved(folder + u"/invoice-october.ods"_s)}; // Gone.
}

QByteArray shortcuts()
{
    return R"({"groups": [
        {"title": "Work", "buttons": [
            {"name": "Inbox", "icon": "envelope.fill", "url": "mail.example"},
            {"name": "Calendar", "icon": "calendar", "url": "calendar.example"},
            {"name": "Files", "icon": "folder.fill", "url": "files.example"},
            {"name": "Drawing board", "icon": "paintpalette.fill", "url": "draw.example"}]},
        {"title": "Make money", "color": "gold", "buttons": [
            {"name": "Find leads", "icon": "map.fill", "url": "maps.example"},
            {"name": "Write to them", "icon": "paperplane.fill", "url": "write.example"},
            {"name": "Book a call", "icon": "phone.fill", "url": "book.example"}]},
        {"title": "Hosting", "color": "#22c55e", "buttons": [
            {"name": "Servers", "icon": "server.rack", "url": "servers.example"},
            {"name": "Domains", "url": "domains.example"}]}]})";
}

} // namespace

Day richDay(const QString& folder)
{
    const auto ours = clients();
    return {
        .data = {.clients = ours,
                 .tasks = tasks(ours),
                 .entries = entries(ours),
                 .shelf = shelf(folder),
                 .launch = {launch(u"Mail"_s, u"https://mail.example"_s),
                            launch(u"Shop"_s, u"admin.shop.example"_s),
                            launch(u"Editor"_s, application(folder, u"Editor"_s, 0x3b82f6)),
                            launch(u"Sounds"_s, application(folder, u"Sounds"_s, 0xf97316)),
                            launch(u"Photos"_s, folder + u"/Photos"_s)},
                 .notes = u"Corner Café: opening hours on every page, phone number as a link.\n"
                          "Barbers want to book by chair. Who answers the phone on Saturdays?\n\n"
                          "— 18 Nov 2026 at 09:41\nBring the paper samples on Friday.\n"_s},
        .shortcuts = {shortcuts()},
        .playing = u"Slow Mornings||The Paper Boats||playing"_s,
        .events = QList{meeting(u"Call with Harbour Yoga"_s, -20, 45, 0x22c55e),
                        meeting(u"Menu review, Corner Café"_s, 23, 30, 0x8b5cf6),
                        meeting(u"Dentist"_s, 115, 30, 0xef4444),
                        meeting(u"Evening class: lettering"_s, 260, 90, 0xf5c542),
                        quib::CalendarEntry{.title = u"Ada on holiday"_s,
                                            .start = {QDate(2026, 11, 18), QTime(), Utc},
                                            .end = {QDate(2026, 11, 19), QTime(), Utc},
                                            .isAllDay = true,
                                            .color = 0x38bdf8}},
    };
}

Day emptyDay(const QString& /*folder*/)
{
    return {};
}
