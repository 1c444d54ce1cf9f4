#include "platform/linux/files/diskprobe.h"

#include <QFile>

#include <utility>

#include <sys/stat.h>

namespace quib {

namespace {

constexpr qsizetype MostAtOnce = 4;
constexpr qsizetype MostHung = 64;

/// A NUL would end the path early: there is no such file.
FilePresence presenceOf(const QString& path)
{
    const auto name = QFile::encodeName(path);
    struct stat status { };
    const bool isThere = !name.contains('\0') && ::stat(name.constData(), &status) == 0;
    return isThere ? FilePresence::There : FilePresence::Gone;
}

} // namespace

DiskProbe::DiskProbe(std::chrono::milliseconds patience)
    : m_work({.patience = patience, .atOnce = MostAtOnce, .hung = MostHung})
{
}

void DiskProbe::ask(const QString& path, Answer answer)
{
    auto& answers = m_waiting[path];
    answers.append(std::move(answer));
    if (answers.size() > 1) {
        return; // It is being looked at.
    }
    if (m_hung.contains(path)) {
        QMetaObject::invokeMethod(
            this, [this, path] { this->answer(path, FilePresence::Unknown); },
            Qt::QueuedConnection);
        return;
    }
    look(path);
}

void DiskProbe::look(const QString& path)
{
    m_work.add({.work =
                    [this, path] {
                        return [this, path, presence = presenceOf(path)](PatientWork::Arrival) {
                            m_hung.remove(path);
                            answer(path, presence);
                        };
                    },
                .giveUp = [this, path](PatientWork::GivenUp givenUp) { giveUp(givenUp, path); }});
}

void DiskProbe::giveUp(PatientWork::GivenUp givenUp, const QString& path)
{
    if (givenUp == PatientWork::GivenUp::Hung) {
        m_hung.insert(path);
    }
    answer(path, FilePresence::Unknown);
}

void DiskProbe::answer(const QString& path, FilePresence presence)
{
    for (const auto& waiting : m_waiting.take(path)) {
        waiting(presence);
    }
}

} // namespace quib
