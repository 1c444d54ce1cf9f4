#pragma once

#include "support/panel/shownpanel.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The links tab of a panel that has the keyboard, with a shortcuts file of the test's own.
struct LinksTab : ShownPanel {
    /// One group, as the file has it.
    static QJsonObject group(const QString& title, const QJsonArray& buttons,
                             const QString& color = {})
    {
        QJsonObject group{{QStringLiteral("title"), title}, {QStringLiteral("buttons"), buttons}};
        if (!color.isNull()) {
            group.insert(QStringLiteral("color"), color);
        }
        return group;
    }

    static QJsonObject button(const QString& name, const QString& url, const QString& icon = {})
    {
        QJsonObject button{{QStringLiteral("name"), name}, {QStringLiteral("url"), url}};
        if (!icon.isNull()) {
            button.insert(QStringLiteral("icon"), icon);
        }
        return button;
    }

    static QJsonArray buttons(int count)
    {
        QJsonArray buttons;
        for (int number = 0; number < count; ++number) {
            buttons << button(QStringLiteral("Button %1").arg(number),
                              QStringLiteral("example.com/%1").arg(number), QStringLiteral("star"));
        }
        return buttons;
    }

    void write(const QByteArray& text) const
    {
        writeFile(workspace.folder.filePath(QStringLiteral("shortcuts.json")), text);
    }

    void write(const QJsonArray& groups) const
    {
        write(QJsonDocument(QJsonObject{{QStringLiteral("groups"), groups}}).toJson());
    }

    /// Opens the tab, which reads the file; or closes it before and opens it again.
    void show()
    {
        model.setExpanded(false);
        open(quib::Tab::Links);
        takeKeyboard();
        settle();
    }
    void show(const QJsonArray& groups)
    {
        write(groups);
        show();
    }

    /// One box with one button.
    void showButton(const QString& name, const QString& color = {})
    {
        show({group(QStringLiteral("Work"),
                    {button(name, QStringLiteral("a.b"), QStringLiteral("star"))}, color)});
    }

    /// The boxes, from left to right.
    QList<QQuickItem*> boxes() const
    {
        auto found = findAll(root(), QStringLiteral("group"));
        std::ranges::sort(found, {}, &QQuickItem::x);
        return found;
    }

    QQuickItem* part(int box, const QString& name) const { return find(boxes().at(box), name); }

    /// The button at a row of a box; null while it is far out of sight.
    QQuickItem* shortcut(int row, int box = 0) const
    {
        auto* cell = rowOf(part(box, QStringLiteral("buttons")), row);
        return cell ? find(cell, QStringLiteral("shortcut")) : nullptr;
    }

    QQuickItem* partOf(int row, const QString& name, int box = 0) const
    {
        return find(shortcut(row, box), name);
    }

    QStringList titles() const
    {
        QStringList found;
        for (const auto* box : boxes()) {
            found << textOf(box, "title");
        }
        return found;
    }
};
