#pragma once

#include "desktop/desk/desk.h"

#include <QStringList>

/// An application that writes down what it is asked to open; the desk's own for those types.
class Recorder {
public:
    Recorder(Desk& desk, const QStringList& types);

    /// Addresses, and paths of files, in the order in which they came.
    QStringList opened() const;
    /// The last of them; empty while there is none.
    QString openedLast() const;

private:
    QString m_record;
};
