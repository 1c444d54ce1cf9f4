#include "picker/placing.h"

namespace quib {

namespace {

constexpr int Gap = 16;
constexpr int TitleBar = 32; // Window managers take about as much.
constexpr int LeastHeight = 240;

} // namespace

QRect placeClearOf(const QRect& card, const QRect& available, QSize wanted)
{
    auto room = available.adjusted(Gap, Gap + TitleBar, -Gap, -Gap);
    const auto below = room.bottom() - (card.bottom() + Gap + TitleBar);
    if (!card.isEmpty() && below >= LeastHeight) {
        room.setTop(card.bottom() + Gap + TitleBar);
    }
    QRect place({}, wanted.boundedTo(room.size()));
    place.moveCenter(room.center());
    place.moveTop(room.top());
    return place;
}

} // namespace quib
