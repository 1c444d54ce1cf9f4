#pragma once

#include "platform/linux/picker/pickerprogram.h"
#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"

#include <QTemporaryDir>
#include <QUrl>
#include <QWindow>

#include <memory>
#include <optional>

/// An open panel, and who chooses above it by the real program; in a home without applications, on
/// a desktop that has its window manager already.
class PickerDesk {
public:
    static constexpr QRect Card{450, 0, 700, 290}; ///< What is seen of the panel.
    static const QString Program;

    QWindow panel;
    quib::XcbPanelHost host;
    std::unique_ptr<quib::PickerProgram> picker;
    QList<std::optional<QUrl>> answers;
    xcb_window_t window = XCB_NONE; ///< Of the choice that is open.

    PickerDesk();
    ~PickerDesk();
    Q_DISABLE_COPY_MOVE(PickerDesk)

    QString path(const QString& name) const { return m_home.filePath(name); }
    QString addEntry(const QString& id, const QString& name, const QByteArray& lines = {}) const;

    /// Until the window has the keyboard.
    void chooseFolder(const QString& start);
    void chooseApplication();
    quib::FilePicker::Answer note();
    /// The paths that were answered; an empty one where nothing was chosen.
    QStringList chosen() const;
    pid_t processOfWindow() const;

private:
    QTemporaryDir m_home;
};

/// The window in front; none while it has another title.
xcb_window_t windowNamed(const QString& title);

void type(const QString& text);
void key(const QString& name);
