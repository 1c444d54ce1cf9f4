#pragma once

#include "integrations/iconsource.h"
#include "platform/linux/filepicture.h"

#include <QCache>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>

#include <chrono>
#include <memory>

namespace quib {

/// Looks icons up in the desktop's theme, on threads that nobody waits for: what hangs on a dead
/// disk gets the stand-in, and holds up neither other icons nor the end of the program.
class ThemeIconSource final : public IconSource {
    Q_OBJECT

public:
    /// A look-up that takes longer has most likely hung.
    static constexpr auto Patience = std::chrono::seconds(1);

    explicit ThemeIconSource(std::chrono::milliseconds patience = Patience);
    ~ThemeIconSource() override;

    void find(const QString& path, int pixels, Answer answer) override;
    bool isBusy() const override { return !m_waiting.isEmpty(); }

    /// The theme of the user's choice. One that is not installed counts as none.
    void setTheme(const QString& name);

protected:
    /// Threads have posted their answers.
    void customEvent(QEvent* event) override;

private:
    class Letterbox;

    struct Kept {
        QImage picture;
        QElapsedTimer age;
    };

    void begin();
    void start(const PictureWish& wish);
    void arrive(int number, const PictureWish& wish, const QImage& picture);
    void giveUp(int number, const PictureWish& wish);
    void answer(const PictureWish& wish, const QImage& picture);

    std::chrono::milliseconds m_patience;
    std::shared_ptr<Letterbox> m_letterbox;
    QString m_theme;
    QHash<PictureWish, QList<Answer>> m_waiting;
    QList<PictureWish> m_queue; ///< Those of them that no thread looks up yet.
    int m_number = 0; ///< Of the last thread.
    QSet<int> m_running;
    QSet<int> m_hung;
    QCache<PictureWish, Kept> m_kept;
};

} // namespace quib
