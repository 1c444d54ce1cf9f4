#include "bytes.h"
#include "integrations/media/mediacontroller.h"
#include "platform/linux/media/mprisreply.h"
#include "support/fakes/fakeplayerlink.h"
#include "support/fakes/handclock.h"

#include <QStringList>
#include <QVariantMap>

namespace {

QVariant value(Bytes& given)
{
    switch (given.byte() % 6) {
    case 0: return given.text();
    case 1: return QStringList{given.text()};
    case 2: return QStringList{given.text(), given.text(), given.text()};
    case 3: return given.byte();
    case 4: return given.word();
    default: return {};
    }
}

} // namespace

/// Whatever a player says of itself is a track of one line each for title and artist, or nothing.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    Bytes given(bytes, size);
    const auto status = given.text();
    QVariantMap track;
    for (const auto* key : {"xesam:title", "xesam:artist", "xesam:url"}) {
        track.insert(QString::fromLatin1(key), value(given));
    }
    const auto reply = quib::replyText(status, track);
    demand(!reply.contains(u'\n') && reply.size() < 1000);

    HandClock clock;
    FakePlayerLink link;
    link.running = {quib::Player::Spotify};
    quib::MediaController media(link, clock.scheduler());
    media.startPolling();
    link.answer(reply);
    demand(!media.isPlaying() || reply.endsWith(QStringLiteral("||playing")));
    media.refresh();
    link.answer(given.text()); // Not by our own link: as a player of another kind may answer.
    return 0;
}
