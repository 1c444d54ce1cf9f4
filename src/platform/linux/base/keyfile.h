#pragma once

#include "platform/linux/base/gowned.h"

#include <QString>
#include <QStringList>

namespace quib {

/// The groups and keys of a desktop entry, or of the index of a theme. A file that is none has
/// none.
class KeyFile {
public:
    explicit KeyFile(const QString& path);

    QString text(const QString& group, const char* key) const; ///< Empty where there is none.
    QString textInOurLanguage(const QString& group, const char* key) const;
    /// The parts between commas.
    QStringList list(const QString& group, const char* key) const;
    int number(const QString& group, const char* key, int otherwise) const;

private:
    GKeyFileOwned m_file;
};

} // namespace quib
