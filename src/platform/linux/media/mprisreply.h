#pragma once

#include <QString>
#include <QVariantMap>

namespace quib {

/// What a player says about itself as "title||artist||state"; empty when it is stopped. A player
/// may say anything: what is of another type than it should be counts as not said, and texts
/// without end are cut.
QString replyText(const QVariantMap& properties);

/// The same of a player with that "PlaybackStatus", once its "Metadata" is taken out.
QString replyText(const QString& status, const QVariantMap& track);

} // namespace quib
