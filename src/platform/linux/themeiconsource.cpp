#include "platform/linux/themeiconsource.h"

#include "platform/linux/startdetached.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr int LargestPicture = 1024;
constexpr qsizetype MostAtOnce = 2;
constexpr qsizetype MostHung = 8; // With so many nothing more is tried.
constexpr qsizetype MostKept = 500;
constexpr auto KeptFor = 60s; // Applications come and go.
constexpr auto LongestFarewell = 200ms;

} // namespace

/// How a thread reaches the source for as long as there is one.
class ThemeIconSource::Letterbox {
public:
    explicit Letterbox(ThemeIconSource& owner)
        : m_owner(&owner)
    {
    }

    void expect()
    {
        const std::scoped_lock lock(m_mutex);
        ++m_expected;
    }

    void post(std::function<void()> letter)
    {
        const std::scoped_lock lock(m_mutex);
        --m_expected;
        m_letters.push_back(std::move(letter));
        if (m_owner) {
            QCoreApplication::postEvent(m_owner, new QEvent(QEvent::User)); // Which Qt takes.
        }
        m_posted.notify_all();
    }

    std::vector<std::function<void()>> take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_letters, {});
    }

    /// Lets those that are about to end do so: the program may be ending around them.
    void close(qsizetype hung)
    {
        std::unique_lock lock(m_mutex);
        m_owner = nullptr;
        m_posted.wait_for(lock, LongestFarewell, [&] { return m_expected <= hung; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_posted;
    ThemeIconSource* m_owner;
    std::vector<std::function<void()>> m_letters;
    qsizetype m_expected = 0;
};

ThemeIconSource::ThemeIconSource(std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_letterbox(std::make_shared<Letterbox>(*this))
    , m_kept(MostKept)
{
}

ThemeIconSource::~ThemeIconSource()
{
    m_letterbox->close(m_hung.size());
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
    m_queue.append(wish);
    QMetaObject::invokeMethod(this, &ThemeIconSource::begin, Qt::QueuedConnection);
}

void ThemeIconSource::setTheme(const QString& name)
{
    if (m_theme != name) {
        m_theme = name;
        Q_EMIT changed();
    }
}

void ThemeIconSource::customEvent(QEvent* /*event*/)
{
    for (const auto& letter : m_letterbox->take()) {
        letter();
    }
}

void ThemeIconSource::begin()
{
    while (!m_queue.isEmpty() && m_running.size() < MostAtOnce) {
        const auto wish = m_queue.takeFirst();
        if (m_hung.size() < MostHung) {
            start(wish);
        } else {
            answer(wish, standIn(wish.pixels));
        }
    }
}

void ThemeIconSource::start(const PictureWish& wish)
{
    const int number = ++m_number;
    const bool isStarted = startDetached([this, letterbox = m_letterbox, number, wish] {
        const auto picture = pictureOf(wish);
        letterbox->post([this, number, wish, picture] { arrive(number, wish, picture); });
    });
    if (!isStarted) {
        answer(wish, standIn(wish.pixels));
        return;
    }
    m_running.insert(number);
    m_letterbox->expect();
    QTimer::singleShot(m_patience, this, [this, number, wish] { giveUp(number, wish); });
}

void ThemeIconSource::arrive(int number, const PictureWish& wish, const QImage& picture)
{
    const bool wasGivenUp = m_hung.remove(number);
    auto kept = std::make_unique<Kept>(Kept{.picture = picture, .age = {}});
    kept->age.start();
    m_kept.insert(wish, kept.release()); // The cache takes it.
    if (m_running.remove(number)) {
        answer(wish, picture);
    } else if (wasGivenUp && picture != standIn(wish.pixels)) {
        Q_EMIT changed();
    }
    begin();
}

void ThemeIconSource::giveUp(int number, const PictureWish& wish)
{
    if (m_running.remove(number)) {
        m_hung.insert(number);
        answer(wish, standIn(wish.pixels));
        begin();
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
