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
    /// The text with its line breaks as spaces, so that one line stays one line, and without the
    /// characters that only steer devices.
    Q_INVOKABLE static QString unbroken(const QString& text);
    /// The same of its beginning, whole characters as a reader sees them, with an ellipsis where
    /// more follows: more than the panel is wide, and no work for a text of a megabyte.
    Q_INVOKABLE static QString beginning(const QString& text);
    /// The same of a text that is cut in its midst: its beginning and its end.
    Q_INVOKABLE static QString ends(const QString& text);
    /// Whether each character of the text can be drawn by itself, one after the other.
    Q_INVOKABLE static bool standsInCells(const QString& text);
    /// For putting the text into another: the other one's order does not mix with its own.
    Q_INVOKABLE static QString isolated(const QString& text);
    /// How wide the widest of the ten digits is.
    Q_INVOKABLE static double widestDigit(const QFont& font);
};

} // namespace quib
