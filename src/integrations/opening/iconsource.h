#pragma once

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>

namespace quib {

/// The pictures by which this desktop knows its files and applications. Implemented once per
/// platform. On the main thread; nothing waits.
class IconSource : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(const QImage& picture)>;

    /// Asks for the picture of what lies at a full path, a square of so many pixels. Answers once,
    /// later: with a stand-in where there is no picture, never with a null one. Once this is gone
    /// nobody answers.
    virtual void find(const QString& path, int pixels, Answer answer) = 0;
    /// While answers are due.
    virtual bool isBusy() const = 0;

Q_SIGNALS:
    /// No answer is due any more.
    void settled();
    /// What was answered before may look different now.
    void changed();
};

} // namespace quib
