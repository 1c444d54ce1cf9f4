#include "platform/linux/picker/pickerprogram.h"

#include "platform/linux/base/companion.h"
#include "platform/linux/window/linuxpanelhost.h"

#include <QProcess>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// A killed program is gone at once, unless the system itself hangs.
constexpr int PatienceMs = 200;

/// What the panel set for itself is not meant for others.
QProcessEnvironment environment()
{
    auto variables = QProcessEnvironment::systemEnvironment();
    for (const auto& name :
         {u"QT_QPA_UPDATE_IDLE_TIME"_s, u"QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT"_s}) {
        variables.remove(name);
    }
    return variables;
}

QString rectText(const QRect& rect)
{
    return u"%1,%2,%3,%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

/// One run of the program. Its answer is given exactly once, unless this ends first.
class PickerProgram::Choice : public QObject {
public:
    Choice(LinuxPanelHost& host, Answer answer, QObject* parent)
        : QObject(parent)
        , m_host(host)
        , m_answer(std::move(answer))
    {
        connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &Choice::read);
        connect(m_process.get(), &QProcess::finished, this, &Choice::end);
        connect(m_process.get(), &QProcess::errorOccurred, this,
                [this](QProcess::ProcessError error) {
                    if (error == QProcess::FailedToStart) {
                        QMetaObject::invokeMethod(this, &Choice::end, Qt::QueuedConnection);
                    }
                });
    }

    ~Choice() override
    {
        m_process->disconnect(this);
        m_process->kill();
        m_process->waitForFinished(PatienceMs);
        if (m_process->state() != QProcess::NotRunning) {
            // Its own destructor would wait for half a minute.
            auto* const hung = m_process.release();
            connect(hung, &QProcess::finished, hung, &QObject::deleteLater);
        }
    }

    Choice(const Choice&) = delete;
    Choice& operator=(const Choice&) = delete;

    void start(const QString& program, const QStringList& arguments)
    {
        m_process->setProcessEnvironment(environment());
        m_process->setStandardErrorFile(QProcess::nullDevice());
        m_process->start(program, arguments);
    }

    /// The answer comes once the program has ended.
    void cancel()
    {
        m_isCancelled = true;
        m_process->kill();
    }

private:
    void read()
    {
        while (m_process->canReadLine()) {
            const auto line = m_process->readLine().trimmed();
            if (line.startsWith("shown ")) {
                m_host.placeBelow(line.mid(6).toUInt());
            } else if (line.startsWith("chosen ")) {
                m_chosen = QUrl::fromEncoded(line.mid(7), QUrl::StrictMode);
            }
        }
    }

    void end()
    {
        read();
        m_host.orderFront();
        deleteLater();
        if (const auto answer = std::exchange(m_answer, nullptr)) {
            answer(m_isCancelled ? std::nullopt : m_chosen);
        }
    }

    LinuxPanelHost& m_host;
    Answer m_answer;
    std::unique_ptr<QProcess> m_process = std::make_unique<QProcess>();
    std::optional<QUrl> m_chosen;
    bool m_isCancelled = false;
};

PickerProgram::PickerProgram(LinuxPanelHost& host, QString program)
    : m_host(host)
    , m_program(program.isEmpty() ? companion(u"quib-picker"_s) : std::move(program))
{
}

void PickerProgram::chooseFolder(const std::optional<QUrl>& startIn, Answer answer)
{
    choose({u"--folder"_s, startIn.value_or(QUrl()).toLocalFile()}, std::move(answer));
}

void PickerProgram::chooseApplication(Answer answer)
{
    choose({u"--application"_s}, std::move(answer));
}

void PickerProgram::choose(const QStringList& arguments, Answer answer)
{
    for (auto* open : m_open.children()) {
        static_cast<Choice*>(open)->cancel();
    }
    auto* choice = new Choice(m_host, std::move(answer), &m_open);
    choice->start(m_program,
                  QStringList(arguments) << u"--clear-of"_s << rectText(m_host.cardFrame()));
}

} // namespace quib
