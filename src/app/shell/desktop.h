#pragma once

#include <QObject>
#include <QString>

namespace quib {

/// What the desktop around us prefers. Implemented once per platform; nothing here blocks.
class Desktop : public QObject {
    Q_OBJECT

public:
    /// True where the user wants no animations. False until the desktop has answered.
    virtual bool isMotionReduced() const = 0;
    /// The family that the desktop writes its interface in.
    virtual QString fontFamily() const = 0;
    /// The alert sound.
    virtual void beep() = 0;

Q_SIGNALS:
    void isMotionReducedChanged();
};

} // namespace quib
