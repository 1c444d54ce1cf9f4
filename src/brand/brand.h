#pragma once

#include <QColor>
#include <QObject>

#include <optional>

#include <qqmlintegration.h>

namespace quib {

/// The palette, for C++ and for views: the only place with a colour's numbers.
class Brand : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor purple READ purple CONSTANT)
    Q_PROPERTY(QColor glow READ glow CONSTANT)
    Q_PROPERTY(QColor deep READ deep CONSTANT)
    Q_PROPERTY(QColor live READ live CONSTANT)
    Q_PROPERTY(QColor muted READ muted CONSTANT)
    Q_PROPERTY(QColor muted2 READ muted2 CONSTANT)
    Q_PROPERTY(QColor card READ card CONSTANT)
    Q_PROPERTY(QColor cardSurface READ cardSurface CONSTANT)
    Q_PROPERTY(QColor cardStroke READ cardStroke CONSTANT)
    Q_PROPERTY(QColor popup READ popup CONSTANT)
    Q_PROPERTY(QColor gold READ gold CONSTANT)
    Q_PROPERTY(QColor red READ red CONSTANT)

public:
    static QColor purple() { return {139, 92, 246}; }
    static QColor glow() { return {167, 139, 250}; }
    static QColor deep() { return {91, 33, 182}; }
    static QColor live() { return {16, 185, 129}; }
    static QColor muted() { return {168, 164, 184}; }
    static QColor muted2() { return {122, 117, 136}; }
    static QColor card() { return QColor::fromRgbF(1, 1, 1, 0.055F); }
    /// What a card looks like on the panel's black, for what covers it.
    static QColor cardSurface() { return {14, 14, 14}; }
    static QColor cardStroke() { return QColor::fromRgbF(1, 1, 1, 0.07F); }
    /// What lies over the card and its texts, and so lets nothing through.
    static QColor popup() { return {30, 27, 38}; }

    static QColor gold() { return {245, 197, 66}; }
    /// Of what ends or deletes something.
    static QColor red() { return {255, 69, 58}; }
    /// Of a calendar without a colour.
    static QColor systemPurple() { return {191, 90, 242}; }

    /// The colour that a word means, in any case: "purple", "gold" or six hexadecimal digits with
    /// or without "#" around them. Glow for no word and for any other.
    static QColor named(const std::optional<QString>& word);
    /// The colour of a client's status, given its raw text; muted2 for any other text.
    Q_INVOKABLE static QColor color(const QString& status);
    /// The same for small letters: the lighter one of two where the other is hard to read.
    Q_INVOKABLE static QColor letterColor(const QString& status);
    /// White at an opacity from 0 to 1: the surfaces that lie on the card.
    Q_INVOKABLE static QColor white(double opacity);
};

} // namespace quib
