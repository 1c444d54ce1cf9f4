#pragma once

#include <QObject>
#include <QString>

#include <qqmlintegration.h>

namespace quib {

/// What pasting puts into a field of one line: line breaks become spaces, and a text that had any
/// loses the blanks around it. Empty where there is nothing to paste.
class PastedLine : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString ofClipboard();
    /// Of the text that is selected anywhere on the screen, where the desktop tells it.
    Q_INVOKABLE static QString ofSelection();
};

} // namespace quib
