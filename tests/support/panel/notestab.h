#pragma once

#include "support/panel/shownpanel.h"

#include <QClipboard>
#include <QGuiApplication>

/// The notes of a panel that has the keyboard.
struct NotesTab : ShownPanel {
    explicit NotesTab(const QString& notes = {})
    {
        store().setNotes(notes);
        open(quib::Tab::Notes);
        takeKeyboard();
    }

    QString notes() const { return store().notes(); }

    /// What takes the keys.
    QQuickItem* input() const { return find(area(), QStringLiteral("input")); }
    QQuickItem* area() const { return item(QStringLiteral("notes")); }
    QQuickItem* placeholder() const { return find(area(), QStringLiteral("placeholder")); }
    bool isEditing() const { return area()->property("isEditing").toBool(); }
    int cursor() const { return input()->property("cursorPosition").toInt(); }
    QString selected() const { return textOf(input(), "selectedText"); }
    double scrolled() const
    {
        return numberOf(find(area(), QStringLiteral("flickable")), "contentY");
    }

    void undo() const { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    void stamp() const { click(item(QStringLiteral("insertTimestamp"))); }
    void copyAll() const { click(item(QStringLiteral("copyAll"))); }

    /// Of the text drawn, in the scene.
    QRectF place(int position) const
    {
        QRectF box;
        QMetaObject::invokeMethod(input(), "positionToRectangle", Q_RETURN_ARG(QRectF, box),
                                  Q_ARG(int, position));
        return input()->mapRectToScene(box);
    }

    /// Whether the cursor is within the frame of the notes.
    bool showsCursor() const { return inScene(area()).contains(place(cursor())); }

    /// "line 0", "line 1", …
    static QString lines(int count)
    {
        QStringList lines;
        for (int number = 0; number < count; ++number) {
            lines << QStringLiteral("line %1").arg(number);
        }
        return lines.join(QLatin1Char('\n'));
    }
};
