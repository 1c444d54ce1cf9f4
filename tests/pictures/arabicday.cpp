#include "pictures/daymaking.h"

using namespace Qt::StringLiterals;
using namespace daymaking;
using quib::ClientStatus;

Day arabicDay(const QString& folder)
{
    const QList<quib::Client> clients{{.id = QUuid::createUuid(),
                                       .name = u"مقهى الزاوية"_s,
                                       .status = ClientStatus::Build,
                                       .siteURL = u"cafe.example"_s,
                                       .folderPath = u"/home/ada/Work/corner-cafe"_s,
                                       .hourlyRate = 450,
                                       .notes = u"القائمة في الصفحة الأولى.\nالافتتاح يوم 27."_s},
                                      {.id = QUuid::createUuid(),
                                       .name = u"حلاقو الشمال"_s,
                                       .status = ClientStatus::Review,
                                       .hourlyRate = 300},
                                      {.id = QUuid::createUuid(),
                                       .name = u"Bloom Florist"_s,
                                       .status = ClientStatus::Lead,
                                       .hourlyRate = 350}};
    return {
        .data
        = {.clients = clients,
           .tasks = {task(u"إرسال المسودة الثانية"_s, clients[0].id),
                     task(u"الاتصال بخصوص نموذج الحجز (v2)"_s, clients[1].id),
                     task(u"Order business cards"_s), task(u"تجديد النطاق"_s, clients[0].id, true)},
           .entries = {{.id = QUuid::createUuid(),
                        .clientID = clients[0].id,
                        .start = Now.addSecs(-5000),
                        .note = u"صفحة القائمة"_s},
                       worked(clients[1].id, 400, 150),
                       worked(clients[2].id, 3000, 90)},
           .shelf = {shelved(writeFile(folder + u"/عرض السعر.pdf"_s, "%PDF-1.7\n"))},
           .launch = {launch(u"البريد"_s, u"mail.example"_s)},
           .notes = u"ساعات العمل في كل صفحة.\nOpening hours on every page.\n"_s},
        .playing = u"صباح هادئ||قوارب الورق||playing"_s,
        .events = QList{meeting(u"اتصال مع الحلاقين"_s, 23, 30, 0x22c55e),
                        meeting(u"مراجعة القائمة (Corner Café)"_s, 115, 30, 0x8b5cf6)},
    };
}
