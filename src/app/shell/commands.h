#pragma once

#include "app/shell/statusmenu.h"

#include <QObject>
#include <QUrl>

#include <functional>
#include <optional>

#include <qqmlintegration.h>

namespace quib {

/// What the views ask of the shell around them. On the main thread.
class Commands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Created by the application delegate")
    Q_PROPERTY(quib::StatusMenu* menu READ menu CONSTANT)
    Q_PROPERTY(bool isMenuInStatusBar READ isMenuInStatusBar NOTIFY isMenuInStatusBarChanged)

public:
    /// Receives the full location of what was chosen.
    using Completion = std::function<void(const QUrl& chosen)>;

    /// Lets the user choose a folder, or an application, while the card stays open. `completion` is
    /// called later, and only when something was chosen. `startIn` counts for folders.
    virtual void pick(bool directories, const std::optional<QUrl>& startIn, Completion completion)
        = 0;
    /// What the application at a full path is called, in the user's language.
    virtual QString applicationName(const QString& path) const = 0;
    /// Gives the panel the keyboard, for an edit that a control starts. False where it has it
    /// already.
    Q_INVOKABLE virtual bool takeKeyboard() = 0;
    /// To whom it was taken from, where the panel has it.
    Q_INVOKABLE virtual void giveBackKeyboard() = 0;
    /// Opens the card, on the shelf if wanted.
    Q_INVOKABLE virtual void expand(bool toShelf) = 0;
    /// Closes the card, unless it is pinned or a dialog holds it open.
    Q_INVOKABLE virtual void dismiss() = 0;
    Q_INVOKABLE virtual void editShortcuts() = 0;
    Q_INVOKABLE virtual void quit() = 0;

    virtual StatusMenu* menu() = 0; ///< Never null, and lives as long as this.
    /// Where it is not, the views offer the menu themselves.
    virtual bool isMenuInStatusBar() const = 0;

Q_SIGNALS:
    void isMenuInStatusBarChanged();
    /// By the left button, on something else than the card, which is kept open.
    void clickedElsewhere();
};

} // namespace quib
