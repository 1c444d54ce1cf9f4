#pragma once

#include <QObject>
#include <QPointer>

class QInputMethodEvent;
class QWindow;

namespace quib {

/// Has what an input method is composing written once when the pointer or another window ends it.
/// Qt writes it and tells the method to forget it; the engines of IBus then write it as well.
class ComposedOnce : public QObject {
    Q_OBJECT

public:
    explicit ComposedOnce(QWindow& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QObject* focus);
    void finish();
    bool isRepeat(const QInputMethodEvent& event);

    QPointer<QObject> m_focus;
    QString m_composed; ///< What is shown and not yet written.
    QString m_finished; ///< What was written because of us, and may come again.
};

} // namespace quib
