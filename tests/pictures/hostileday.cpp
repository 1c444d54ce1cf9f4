#include "pictures/daymaking.h"

using namespace Qt::StringLiterals;
using namespace daymaking;

namespace {

constexpr int Many = 200;

/// What stands in a name when somebody else may write it.
QString word(int number)
{
    static const QStringList words{
        u"<img src=x><b>bold</b> &amp; <a href='y'>z</a>"_s,
        u"Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft"_s,
        u"👩‍👩‍👧‍👦 Family 🏳️‍🌈 & café 🎉🎉🎉"_s,
        u"שלום עולם, café (1) מס׳ 42"_s,
        u"line\nbreak\ttab\u2028sep\u0007bell\u200b\u202eturned round"_s,
        u"Z̸̢͖a̵̛͙l̷͎̈g̴̱̏o̵͔͝ ŵ̶̭ȏ̴̳r̵̥̓d̶̗̈s̷͇̚"_s,
        QString(1'000'000, u'M'),
        u"   "_s,
        u""_s};
    const bool isRepeated = number >= words.size();
    return words[number % words.size()].left(isRepeated ? 1000 : -1);
}

QList<quib::Client> clients()
{
    constexpr std::array Rates{1e20, -0.0, -12.5, 0.1, 1e300, 35.0};
    QList<quib::Client> clients;
    for (int number = 0; number < Many; ++number) {
        const auto row = static_cast<std::size_t>(number);
        clients.append({.id = QUuid::createUuid(),
                        .name = word(number),
                        .status = quib::AllClientStatuses.at(row % 6),
                        .siteURL = u"javascript:alert(1)//"_s + word(number + 1),
                        .folderPath = u"/no/such/"_s + word(number + 1),
                        .hourlyRate = Rates.at(row % Rates.size()),
                        .notes = word(number + 2)});
    }
    return clients;
}

QString notes()
{
    QString notes;
    for (int number = 0; number < 9; ++number) {
        notes += word(number) + u'\n';
    }
    return notes;
}

QByteArray manyShortcuts()
{
    QByteArray groups;
    for (int number = 0; number < 12; ++number) {
        const auto name = word(number).toHtmlEscaped().remove(u'\n').remove(u'\t').remove(QChar(7));
        groups += (number > 0 ? ",{" : "{") + QByteArray(R"("title": ")") + name.toUtf8()
            + R"(", "color": "no colour", "buttons": [)";
        for (int button = 0; button < 9; ++button) {
            groups += (button > 0 ? "," : "") + QByteArray(R"({"name": ")") + name.toUtf8()
                + R"(", "icon": "no.such.symbol", "url": ""})";
        }
        groups += "]}";
    }
    return R"({"groups": [)" + groups + "]}";
}

} // namespace

Day hostileDay(const QString& folder)
{
    Day day{.data = {.clients = clients(), .notes = notes()},
            .shortcuts = {manyShortcuts(), "{\"groups\": [}"},
            .playing = word(1) + u"||"_s + word(0) + u"||paused"_s,
            .events = QList<quib::CalendarEntry>()};
    day.data.entries.append({.id = QUuid::createUuid(),
                             .clientID = day.data.clients[1].id,
                             .start = Now.addDays(-400),
                             .note = word(1)});
    for (int number = 0; number < Many; ++number) {
        const auto client = day.data.clients[number].id;
        day.data.tasks.append(task(word(number), client, number % 7 == 6));
        day.data.entries.append(worked(client, 60 + number, 60, word(number)));
        day.data.launch.append(launch(word(number), word(number + 1)));
        day.data.shelf.append(shelved(folder + u"/gone/"_s + word(number).left(200)));
        day.events->append(meeting(word(number), number, 60, Qt::black));
    }
    return day;
}
