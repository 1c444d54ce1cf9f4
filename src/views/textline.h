#pragma once

#include <QFont>
#include <QObject>
#include <QString>

#include <qqmlintegration.h>

namespace quib {

/// What a text from outside goes through before it is laid out in one line.
class TextLine : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The text with its line breaks as spaces, so that one line stays one line.
    Q_INVOKABLE static QString unbroken(const QString& text);
    /// The same of its beginning, whole characters as a reader sees them, with an ellipsis where
    /// more follows: more than the panel is wide, and no work for a text of a megabyte.
    Q_INVOKABLE static QString beginning(const QString& text);
    /// How wide the widest of the ten digits is.
    Q_INVOKABLE static double widestDigit(const QFont& font);
};

} // namespace quib
