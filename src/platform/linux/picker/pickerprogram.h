#pragma once

#include "app/shell/filepicker.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace quib {

class LinuxPanelHost;

/// Shows the choice in a program of its own: whatever befalls its window, this one goes on, and its
/// end, however it comes, ends the choice.
class PickerProgram final : public FilePicker {
public:
    /// The host is borrowed and outlives this. The program stands beside ours unless told.
    explicit PickerProgram(LinuxPanelHost& host, QString program = {});

    void chooseFolder(const std::optional<QUrl>& startIn, Answer answer) override;
    void chooseApplication(Answer answer) override;

private:
    class Choice;

    void choose(const QStringList& arguments, Answer answer);

    LinuxPanelHost& m_host;
    QString m_program;
    QObject m_open; ///< Parent of the choices that have not ended.
};

} // namespace quib
