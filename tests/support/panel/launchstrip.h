#pragma once

#include "support/panel/hometab.h"

/// The quick-launch strip of the home tab.
struct LaunchStrip : HomeTab {
    QQuickItem* part(const QString& name) const
    {
        return find(item(QStringLiteral("launchStrip")), name);
    }
    QList<QQuickItem*> items() const
    {
        return rows(QStringLiteral("launchStrip"), QStringLiteral("item"));
    }
    QQuickItem* partOf(int row, const QString& name) const { return find(items().at(row), name); }
    QQuickItem* focusItem() const { return window->activeFocusItem(); }

    /// The name of the launch button that has the focus, else that of the item.
    QString focused() const
    {
        return focusItem()->objectName() == QLatin1String("launch")
            ? textOf(focusItem()->parentItem(), "name")
            : focusItem()->objectName();
    }

    /// That many websites, each with its number in its name.
    void fill(int count, const QString& name = QStringLiteral("Number %1")) const
    {
        for (int number = 0; number < count; ++number) {
            launch(name.arg(number), QStringLiteral("a.example"));
        }
    }

    /// Clicks a button and waits for what it changes.
    void push(const QString& button) const
    {
        click(part(button));
        settle();
    }
    void startEditing() const { push(QStringLiteral("edit")); }
    void endEditing() const { push(QStringLiteral("edit")); } ///< By the same button.
    void startAdding() const
    {
        startEditing();
        push(QStringLiteral("addLink"));
    }
};
