#pragma once

#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// What the user did last: a press or a turn of the wheel, or a key. Rings of the keyboard are seen
/// while it is not the pointer.
class LastInput : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isPointer READ isPointer NOTIFY isPointerChanged)

public:
    explicit LastInput(QObject* parent = nullptr);

    bool isPointer() const { return m_isPointer; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void isPointerChanged();

private:
    void take(bool isPointer);

    bool m_isPointer = false;
};

} // namespace quib
