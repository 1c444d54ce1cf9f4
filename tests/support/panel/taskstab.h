#pragma once

#include "support/panel/shownpanel.h"

/// The to-do list of a panel that has the keyboard.
struct TasksTab : ShownPanel {
    TasksTab()
    {
        open(quib::Tab::Tasks);
        takeKeyboard();
    }

    QQuickItem* row(int number) const { return rowOf(item(QStringLiteral("list")), number); }
    QQuickItem* chip(int number) const { return rowOf(item(QStringLiteral("chips")), number); }
    QQuickItem* part(int number, const QString& name) const { return find(row(number), name); }

    QStringList shownTitles() const
    {
        QStringList titles;
        for (int number = 0; row(number); ++number) {
            titles << textOf(row(number), "title");
        }
        return titles;
    }

    /// By pointer and keys, with Return at the end.
    void add(const QString& title) const
    {
        click(item(QStringLiteral("newTitle")));
        type(title);
        press(Qt::Key_Return);
    }
};
