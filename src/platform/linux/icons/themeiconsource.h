#pragma once

#include "integrations/opening/iconsource.h"
#include "platform/linux/base/patientwork.h"
#include "platform/linux/icons/filepicture.h"

#include <QCache>
#include <QElapsedTimer>
#include <QHash>

#include <chrono>

namespace quib {

/// Looks icons up in the desktop's theme, beside the main thread, as PatientWork does: what hangs
/// on a dead disk gets the stand-in, and holds up neither other icons nor the end of the program.
class ThemeIconSource final : public IconSource {
    Q_OBJECT

public:
    /// A look-up that takes longer has most likely hung.
    static constexpr auto Patience = std::chrono::seconds(1);

    explicit ThemeIconSource(std::chrono::milliseconds patience = Patience);

    void find(const QString& path, int pixels, Answer answer) override;
    bool isBusy() const override { return !m_waiting.isEmpty(); }

    /// The theme of the user's choice. One that is not installed counts as none.
    void setTheme(const QString& name);

private:
    struct Kept {
        QImage picture;
        QElapsedTimer age;
    };

    void lookUp(const PictureWish& wish);
    void arrive(PatientWork::Arrival arrival, const PictureWish& wish, const QImage& picture);
    void answer(const PictureWish& wish, const QImage& picture);

    PatientWork m_work;
    QString m_theme;
    QHash<PictureWish, QList<Answer>> m_waiting;
    QCache<PictureWish, Kept> m_kept;
};

} // namespace quib
