#pragma once

#include "platform/linux/base/gowned.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quib {

/// The groups and keys of a desktop entry, or of the index of a theme. A file that is none has
/// none. Read without GIO's own reader: that has one lock, which a thread that hangs on a
/// dead disk may hold.
class KeyFile {
public:
    explicit KeyFile(const QString& path);

    /// There is such a file, and it is of this form to its end.
    bool isWhole() const { return m_isWhole; }
    QString firstGroup() const; ///< Empty where there is none.
    bool has(const QString& group, const char* key) const;
    QString text(const QString& group, const char* key) const; ///< Null where there is none.
    QString textInOurLanguage(const QString& group, const char* key) const;
    /// The parts between commas.
    QStringList list(const QString& group, const char* key) const;
    /// The parts between semicolons, as desktop entries have them; absent where there are none.
    std::optional<QStringList> entryList(const QString& group, const char* key) const;
    bool isOn(const QString& group, const char* key) const;
    int number(const QString& group, const char* key, int otherwise) const;

private:
    GKeyFileOwned m_file;
    bool m_isWhole = false;
};

} // namespace quib
