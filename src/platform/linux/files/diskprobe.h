#pragma once

#include "integrations/opening/fileprobe.h"
#include "platform/linux/base/patientwork.h"

#include <QHash>
#include <QSet>

namespace quib {

/// Looks at the disk beside the main thread, as PatientWork does. A path that hangs holds one
/// thread, however often it is asked about.
class DiskProbe final : public FileProbe {
    Q_OBJECT

public:
    /// A look that takes longer has most likely hung.
    static constexpr auto Patience = std::chrono::seconds(1);

    explicit DiskProbe(std::chrono::milliseconds patience = Patience);

    void ask(const QString& path, Answer answer) override;
    bool isBusy() const override { return !m_waiting.isEmpty(); }

private:
    void look(const QString& path);
    void giveUp(PatientWork::GivenUp givenUp, const QString& path);
    void answer(const QString& path, FilePresence presence);

    PatientWork m_work;
    QHash<QString, QList<Answer>> m_waiting;
    QSet<QString> m_hung; ///< Paths of which an answer may come yet.
};

} // namespace quib
