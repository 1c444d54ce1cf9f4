#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace quib {

/// What can be said of a file or folder. Nobody knows of one on a disk that does not answer.
enum class FilePresence { There, Gone, Unknown };

/// Tells whether files are there. Implemented once per platform. On the main thread; nothing waits.
class FileProbe : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(FilePresence presence)>;

    /// Looks, each time anew, at what a full path leads to. Answers once, later. Once this is gone
    /// nobody answers.
    virtual void ask(const QString& path, Answer answer) = 0;
    /// While answers are due.
    virtual bool isBusy() const = 0;
};

} // namespace quib
