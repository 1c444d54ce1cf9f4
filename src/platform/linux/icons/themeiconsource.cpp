#include "platform/linux/icons/themeiconsource.h"

#include <memory>
#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr int LargestPicture = 1024;
constexpr qsizetype MostKept = 500;
constexpr auto KeptFor = 60s; // Applications come and go.

} // namespace

ThemeIconSource::ThemeIconSource(std::chrono::milliseconds patience)
    : m_work({.patience = patience})
    , m_kept(MostKept)
{
}

void ThemeIconSource::find(const QString& path, int pixels, Answer answer)
{
    const PictureWish wish{
        .path = path, .pixels = qBound(1, pixels, LargestPicture), .theme = m_theme};
    auto& answers = m_waiting[wish];
    answers.append(std::move(answer));
    if (answers.size() > 1) {
        return; // It is on its way.
    }
    const auto* kept = m_kept.object(wish);
    if (kept && !kept->age.hasExpired(std::chrono::milliseconds(KeptFor).count())) {
        QMetaObject::invokeMethod(
            this, [this, wish, picture = kept->picture] { this->answer(wish, picture); },
            Qt::QueuedConnection);
        return;
    }
    lookUp(wish);
}

void ThemeIconSource::setTheme(const QString& name)
{
    if (m_theme != name) {
        m_theme = name;
        Q_EMIT changed();
    }
}

void ThemeIconSource::lookUp(const PictureWish& wish)
{
    m_work.add(
        {.work =
             [this, wish] {
                 return [this, wish, picture = pictureOf(wish)](PatientWork::Arrival arrival) {
                     arrive(arrival, wish, picture);
                 };
             },
         .giveUp = [this, wish](PatientWork::GivenUp) { answer(wish, standIn(wish.pixels)); }});
}

void ThemeIconSource::arrive(PatientWork::Arrival arrival, const PictureWish& wish,
                             const QImage& picture)
{
    auto kept = std::make_unique<Kept>(Kept{.picture = picture, .age = {}});
    kept->age.start();
    m_kept.insert(wish, kept.release()); // The cache takes it.
    if (arrival == PatientWork::Arrival::InTime) {
        answer(wish, picture);
    } else if (picture != standIn(wish.pixels)) {
        Q_EMIT changed();
    }
}

void ThemeIconSource::answer(const PictureWish& wish, const QImage& picture)
{
    for (const auto& waiting : m_waiting.take(wish)) {
        waiting(picture);
    }
    if (m_waiting.isEmpty()) {
        Q_EMIT settled();
    }
}

} // namespace quib
