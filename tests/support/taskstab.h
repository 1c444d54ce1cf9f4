#pragma once

#include "support/shownpanel.h"

/// The to-do list of a panel that has the keyboard.
struct TasksTab : ShownPanel {
    TasksTab()
    {
        open(quib::Tab::Tasks);
        window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(window.get());
    }

    quib::Store& store() const { return *workspace.store; }

    /// Null while it is out of sight, or where there is none.
    QQuickItem* row(int number) const { return rowOf(QStringLiteral("list"), number); }
    QQuickItem* chip(int number) const { return rowOf(QStringLiteral("chips"), number); }
    QQuickItem* part(int number, const QString& name) const { return find(row(number), name); }

    QStringList shownTitles() const
    {
        QStringList titles;
        for (int number = 0; row(number); ++number) {
            titles << row(number)->property("title").toString();
        }
        return titles;
    }

    /// By pointer and keys, with Return at the end.
    void add(const QString& title) const
    {
        click(item(QStringLiteral("newTitle")));
        for (const auto letter : title) {
            QTest::keyClick(window.get(), letter.toLatin1());
        }
        QTest::keyClick(window.get(), Qt::Key_Return);
    }

private:
    QQuickItem* rowOf(const QString& list, int number) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(item(list), "forceLayout");
        QMetaObject::invokeMethod(item(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(int, number));
        return found;
    }
};
