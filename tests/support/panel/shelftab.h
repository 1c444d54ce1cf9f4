#pragma once

#include "support/panel/shownpanel.h"

/// The shelf of a panel that has the keyboard.
struct ShelfTab : ShownPanel {
    ShelfTab()
    {
        open(quib::Tab::Shelf);
        takeKeyboard();
    }

    /// Puts files on it, the last of them in front.
    void put(const QStringList& paths)
    {
        for (const auto& path : paths) {
            store().addToShelf({QUrl::fromLocalFile(path)});
        }
        lookAtTheDisk();
    }

    /// "/file 0" and so on.
    void fill(int count)
    {
        QStringList paths;
        for (int number = 0; number < count; ++number) {
            paths << QStringLiteral("/file %1").arg(number);
        }
        put(paths);
    }

    /// As the tab does by itself every other second.
    void lookAtTheDisk()
    {
        model.setExpanded(false);
        model.setExpanded(true);
        settle();
        QTRY_VERIFY(!files.isBusy());
        settle();
    }

    QQuickItem* list() const
    {
        return find(item(QStringLiteral("shelfList")), QStringLiteral("items"));
    }
    QQuickItem* tile(int number) const { return rowOf(list(), number); }
    QQuickItem* part(int number, const QString& name) const { return find(tile(number), name); }

    /// From left to right.
    QStringList shownNames() const
    {
        QStringList names;
        for (int number = 0; tile(number); ++number) {
            names << textOf(tile(number), "name");
        }
        return names;
    }

    /// The name of the file whose tile has the keyboard; empty when none has.
    QString focusedFile() const
    {
        for (const auto* item = window->activeFocusItem(); item; item = item->parentItem()) {
            if (item->objectName() == QLatin1String("tile")) {
                return textOf(item, "name");
            }
        }
        return {};
    }

    /// Of the open menu; null while there is none.
    QQuickItem* menuRow(const QString& title) const
    {
        for (auto* row : findAll(window->contentItem(), QStringLiteral("title"))) {
            if (textOf(row) == title) {
                return row;
            }
        }
        return nullptr;
    }

    QStringList paths() const
    {
        QStringList paths;
        for (const auto& item : store().data().shelf) {
            paths << item.path;
        }
        return paths;
    }
};
