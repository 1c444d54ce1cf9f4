#include "desktop/desk/retelling.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QStringList asLines(const QJsonObject& workspace)
{
    return QString::fromUtf8(QJsonDocument(workspace).toJson()).split(u'\n');
}

} // namespace

void Retelling::meetClients(const QJsonObject& workspace)
{
    for (const auto& client : workspace["clients"_L1].toArray()) {
        m_clients.insert(client["id"_L1].toString(), client["name"_L1].toString());
    }
}

QStringList Retelling::tell(const QJsonObject& workspace)
{
    m_ids.clear();
    return asLines(told({}, workspace).toObject());
}

QJsonValue Retelling::told(const QString& key, const QJsonValue& value)
{
    if (value.isObject()) {
        auto members = value.toObject();
        for (auto member = members.begin(); member != members.end(); ++member) {
            *member = told(member.key(), *member);
        }
        return members;
    }
    if (value.isArray()) {
        auto list = value.toArray();
        for (auto&& element : list) {
            element = told({}, element);
        }
        return list;
    }
    const auto text = value.toString();
    if (key == "id"_L1) {
        return toldId(text);
    }
    if (key == "notes"_L1) {
        return toldStamps(text);
    }
    if (key == "clientID"_L1) {
        return m_clients.value(text, text);
    }
    return QStringList{u"created"_s, u"start"_s, u"end"_s}.contains(key) ? toldMoment(text) : value;
}

QString Retelling::toldId(const QString& id)
{
    static const QRegularExpression form(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$"_s);
    const bool isNew = !m_ids.contains(id);
    m_ids.insert(id);
    return isNew && form.match(id).hasMatch() ? u"an id"_s : id;
}

QString Retelling::toldMoment(const QString& moment) const
{
    static const QRegularExpression form(u"^\\d{4}-\\d{2}-\\d{2}T\\d{2}:\\d{2}:\\d{2}Z$"_s);
    const auto read = QDateTime::fromString(moment, Qt::ISODate);
    const bool isToday = m_began <= read && read <= QDateTime::currentDateTimeUtc();
    return isToday && form.match(moment).hasMatch() ? u"today"_s : moment;
}

QString Retelling::toldStamps(QString text)
{
    static const QRegularExpression form(
        u"^— \\w{3} \\d{1,2}, \\d{4} at \\d{1,2}:\\d{2}\\s[AP]M$"_s,
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(form, u"— now"_s);
}

QStringList linesOf(const QByteArray& json)
{
    return asLines(QJsonDocument::fromJson(json).object());
}
