#pragma once

#include "support/shownpanel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The panel on its Links tab, with a shortcuts file of the test's own.
struct LinksTab {
    ShownPanel panel;

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
        QFile file(panel.workspace.folder.filePath(QStringLiteral("shortcuts.json")));
        file.open(QIODevice::WriteOnly);
        file.write(text);
    }

    void write(const QJsonArray& groups) const
    {
        write(QJsonDocument(QJsonObject{{QStringLiteral("groups"), groups}}).toJson());
    }

    /// Opens the tab, which reads the file; or closes it before and opens it again.
    void show()
    {
        panel.model.setExpanded(false);
        panel.open(quib::Tab::Links);
        panel.window->requestActivate();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(panel.window.get());
        panel.settle();
    }
    void show(const QJsonArray& groups)
    {
        write(groups);
        show();
    }

    QQuickItem* item(const QString& name) const { return panel.item(name); }
    QRectF rect(const QString& name) const { return panel.rect(name); }
    void press(int key) const { QTest::keyClick(panel.window.get(), Qt::Key(key)); }

    /// The boxes, from left to right.
    QList<QQuickItem*> boxes() const
    {
        QList<QQuickItem*> found;
        collect(panel.root(), QStringLiteral("group"), found);
        std::ranges::sort(found, {}, &QQuickItem::x);
        return found;
    }

    QQuickItem* part(int box, const QString& name) const
    {
        return ShownPanel::find(boxes().at(box), name);
    }

    /// The button at a row of a box; null while it is far out of sight.
    QQuickItem* shortcut(int row, int box = 0) const
    {
        QQuickItem* cell = nullptr;
        auto* grid = part(box, QStringLiteral("buttons"));
        QMetaObject::invokeMethod(grid, "forceLayout");
        QMetaObject::invokeMethod(grid, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, cell),
                                  Q_ARG(int, row));
        return cell ? ShownPanel::find(cell, QStringLiteral("shortcut")) : nullptr;
    }

    QQuickItem* partOf(int row, const QString& name, int box = 0) const
    {
        return ShownPanel::find(shortcut(row, box), name);
    }

    QStringList titles() const
    {
        QStringList found;
        for (const auto* box : boxes()) {
            found << box->property("title").toString();
        }
        return found;
    }

private:
    static void collect(QQuickItem* below, const QString& name, QList<QQuickItem*>& found)
    {
        if (below->objectName() == name) {
            found << below;
        }
        for (auto* child : below->childItems()) {
            collect(child, name, found);
        }
    }
};
