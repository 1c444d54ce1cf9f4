#include "platform/linux/media/musicplayers.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Prefix = "org.mpris.MediaPlayer2."_L1;
constexpr auto InstanceMark = ".instance"_L1; ///< Before what tells several of one kind apart.

/// "vlc" of "org.mpris.MediaPlayer2.vlc.instance123".
QString kindOf(const QString& name)
{
    const auto kind = name.mid(Prefix.size());
    const auto mark = kind.indexOf(InstanceMark);
    return mark > 0 ? kind.left(mark) : kind;
}

bool isSpotify(const QString& name)
{
    return kindOf(name) == "spotify"_L1;
}

/// By its present and its older name.
bool isGnomeMusic(const QString& name)
{
    const auto kind = kindOf(name);
    return kind == "org.gnome.Music"_L1 || kind == "GnomeMusic"_L1;
}

/// Names are as different as "chromium", "google-chrome" and "org.gnome.Epiphany.Sandboxed".
bool isBrowser(const QString& kind)
{
    static const QSet<QString> browsers{
        u"firefox"_s,  u"librewolf"_s, u"waterfox"_s, u"floorp"_s, u"zen"_s,
        u"chromium"_s, u"chrome"_s,    u"brave"_s,    u"edge"_s,   u"opera"_s,
        u"vivaldi"_s,  u"epiphany"_s,  u"webkit"_s,   u"falkon"_s, u"qutebrowser"_s};
    auto words = kind.toLower();
    words.replace(u'-', u'.').replace(u'_', u'.');
    return std::ranges::any_of(words.split(u'.'),
                               [](const QString& word) { return browsers.contains(word); });
}

/// Shows what a player shows that is there itself, or that plays on a phone.
bool isDouble(const QString& kind)
{
    return kind == "playerctld"_L1 || kind == "plasma-browser-integration"_L1
        || kind.startsWith("kdeconnect."_L1) || kind.startsWith("GSConnect."_L1);
}

bool isMusicPlayer(const QString& name)
{
    const auto kind = kindOf(name);
    return name.startsWith(Prefix) && !isBrowser(kind) && !isDouble(kind);
}

QString firstOf(const QStringList& names, bool (*isWanted)(const QString&))
{
    const auto found = std::ranges::find_if(names, isWanted);
    return found == names.end() ? QString() : *found;
}

bool isOther(const QString& name)
{
    return !isSpotify(name);
}

} // namespace

QString MusicPlayers::nameOf(Player player) const
{
    switch (player) {
    case Player::Spotify: return firstOf(m_names, isSpotify);
    case Player::Music: return m_music;
    }
    Q_UNREACHABLE();
}

void MusicPlayers::add(const QStringList& names)
{
    std::ranges::copy_if(names, std::back_inserter(m_names), isMusicPlayer);
    m_names.sort();
    m_names.removeDuplicates();
    choose();
}

void MusicPlayers::remove(const QString& name)
{
    m_names.removeAll(name);
    choose();
}

void MusicPlayers::choose()
{
    const auto gnomeMusic = firstOf(m_names, isGnomeMusic);
    if (!gnomeMusic.isEmpty()) {
        m_music = gnomeMusic;
    } else if (!m_names.contains(m_music)) {
        m_music = firstOf(m_names, isOther);
    }
}

} // namespace quib
