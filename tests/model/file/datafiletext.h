#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// A data file with one record in each list, as it stands or with one member changed.

/// One record in each list, with every optional member.
inline QJsonObject wholeFile()
{
    using namespace Qt::StringLiterals;
    const auto id = u"6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34"_s;
    const auto date = u"2026-03-02T09:00:00Z"_s;
    const QJsonObject client{{u"id"_s, id},
                             {u"name"_s, u"Bloom"_s},
                             {u"status"_s, u"lead"_s},
                             {u"siteURL"_s, QString()},
                             {u"folderPath"_s, QString()},
                             {u"hourlyRate"_s, 35},
                             {u"notes"_s, QString()}};
    const QJsonObject task{{u"id"_s, id},
                           {u"title"_s, u"Call Ann"_s},
                           {u"clientID"_s, id},
                           {u"done"_s, false},
                           {u"created"_s, date}};
    const QJsonObject entry{{u"id"_s, id},
                            {u"clientID"_s, id},
                            {u"start"_s, date},
                            {u"end"_s, date},
                            {u"note"_s, QString()}};
    const QJsonObject item{{u"id"_s, id}, {u"path"_s, u"/a"_s}};
    const QJsonObject launch{{u"id"_s, id}, {u"name"_s, u"Mail"_s}, {u"target"_s, u"/b"_s}};
    return {{u"clients"_s, QJsonArray{client}}, {u"tasks"_s, QJsonArray{task}},
            {u"entries"_s, QJsonArray{entry}},  {u"shelf"_s, QJsonArray{item}},
            {u"launch"_s, QJsonArray{launch}},  {u"notes"_s, u"all of it"_s}};
}

/// The file with one member of its first record of a list set, or taken out when undefined.
inline QByteArray with(const QString& list, const QString& key, const QJsonValue& value)
{
    auto file = wholeFile();
    auto record = file[list].toArray().first().toObject();
    value.isUndefined() ? record.remove(key) : void(record[key] = value);
    file[list] = QJsonArray{record};
    return QJsonDocument(file).toJson();
}

inline QByteArray with(const QString& key, const QJsonValue& value)
{
    auto file = wholeFile();
    value.isUndefined() ? file.remove(key) : void(file[key] = value);
    return QJsonDocument(file).toJson();
}
