#pragma once

#include <QUrl>

#include <functional>
#include <optional>

namespace quib {

/// Lets the user choose a thing in a window of its own, wholly visible and with the keyboard.
/// Implemented once per platform; on the main thread, never waiting.
class FilePicker {
public:
    /// Called exactly once for each choice, later, whatever ends it; absent when nothing was
    /// chosen.
    using Answer = std::function<void(const std::optional<QUrl>& chosen)>;

    FilePicker() = default;
    virtual ~FilePicker() = default;
    FilePicker(const FilePicker&) = delete;
    FilePicker& operator=(const FilePicker&) = delete;

    /// Starts in that folder; where none is given, in a place of the desktop's choice. A choice
    /// that is still open ends without anything chosen.
    virtual void chooseFolder(const std::optional<QUrl>& startIn, Answer answer) = 0;
    /// Starts with all installed applications. A choice that is still open ends likewise.
    virtual void chooseApplication(Answer answer) = 0;
};

} // namespace quib
