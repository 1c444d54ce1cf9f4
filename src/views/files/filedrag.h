#pragma once

#include "views/files/fileicon.h"

#include <qqmlintegration.h>

namespace quib {

/// Carries a file out of the panel by its icon. Whoever takes it copies it, or opens it where it
/// lies.
class FileDrag : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// What a drag of this process offers beside the file, so that the panel knows its own.
    Q_PROPERTY(QString ownFormat READ ownFormat CONSTANT)

public:
    using QObject::QObject;

    static QString ownFormat();

    /// Begins at the next turn of the main loop, while the button is held. Without a path nobody
    /// can take what is carried.
    Q_INVOKABLE static void start(quib::FileIcon* icon, const QString& path);
};

} // namespace quib
