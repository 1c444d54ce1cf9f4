#pragma once

#include "app/notch/filepicker.h"

namespace quib {

/// Shows the choice in a program of its own: its end, however it comes, ends the choice.
class PickerProgram final : public FilePicker {
public:
    void chooseFolder(const std::optional<QUrl>& startIn, Answer answer) override;
    void chooseApplication(Answer answer) override;
};

} // namespace quib
