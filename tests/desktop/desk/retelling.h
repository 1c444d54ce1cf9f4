#pragma once

#include <QDateTime>
#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

/// Tells a workspace in lines that are the same each time the same was done: an id reads "an id", a
/// moment of the day "today", a stamp in notes "now", and a client's id is the client's name. What
/// has not the form that it must have, is repeated, or is of another day stays as it is.
class Retelling {
public:
    /// Remembers the clients, also for when they are gone.
    void meetClients(const QJsonObject& workspace);
    QStringList tell(const QJsonObject& workspace);

private:
    QJsonValue told(const QString& key, const QJsonValue& value);
    QString toldId(const QString& id);
    static QString toldStamps(QString text);
    QString toldMoment(const QString& moment) const;

    QDateTime m_began = QDateTime::currentDateTimeUtc().addSecs(-1); ///< Files hold whole seconds.
    QHash<QString, QString> m_clients;
    QSet<QString> m_ids;
};

/// JSON as a person wrote it, in the lines that a Retelling has.
QStringList linesOf(const QByteArray& json);
