#include "platform/linux/media/mprisreply.h"

#include "model/texts/beginning.h"

#include <QDBusArgument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype LongestText = 300;
constexpr qsizetype LongestAddress = 8192;
constexpr qsizetype MostArtists = 40;

QString textOf(const QVariant& value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

/// On one line.
QString shortened(const QString& text)
{
    return beginningOf(text, LongestText).simplified();
}

/// Taking a map out of anything else would end the program.
QVariantMap mapOf(const QVariant& value)
{
    if (value.typeId() != qMetaTypeId<QDBusArgument>()) {
        return {};
    }
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == "a{sv}"_L1 ? qdbus_cast<QVariantMap>(argument)
                                                     : QVariantMap();
}

QString fileNameOf(const QString& address)
{
    return address.size() > LongestAddress ? QString() : QUrl(address).fileName(QUrl::FullyDecoded);
}

/// The file's name where the track has no title.
QString titleOf(const QVariantMap& track)
{
    const auto title = shortened(textOf(track.value(u"xesam:title"_s)));
    return title.isEmpty() ? shortened(fileNameOf(textOf(track.value(u"xesam:url"_s)))) : title;
}

/// A list, or from some players one text.
QString artistOf(const QVariantMap& track)
{
    const auto artist = track.value(u"xesam:artist"_s);
    if (artist.typeId() != QMetaType::QStringList) {
        return shortened(textOf(artist));
    }
    QString all;
    const auto names = artist.toStringList().mid(0, MostArtists);
    for (const auto& name : names) {
        const auto one = shortened(name);
        all += all.isEmpty() || one.isEmpty() ? one : u", "_s + one;
        if (all.size() > LongestText) {
            break;
        }
    }
    return shortened(all);
}

QString stateOf(const QString& status)
{
    if (status == "Playing"_L1) {
        return u"playing"_s;
    }
    return status == "Paused"_L1 ? u"paused"_s : QString();
}

} // namespace

QString replyText(const QVariantMap& properties)
{
    return replyText(textOf(properties.value(u"PlaybackStatus"_s)),
                     mapOf(properties.value(u"Metadata"_s)));
}

QString replyText(const QString& status, const QVariantMap& track)
{
    const auto state = stateOf(status);
    if (state.isEmpty()) {
        return {};
    }
    return QStringList{titleOf(track), artistOf(track), state}.join("||"_L1);
}

} // namespace quib
