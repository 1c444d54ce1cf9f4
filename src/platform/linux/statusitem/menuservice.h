#pragma once

#include "app/shell/menuitem.h"
#include "platform/linux/statusitem/menumessages.h"

#include <QDBusContext>
#include <QObject>

#include <optional>

namespace quib {

/// A menu on the bus, one level deep, for a status bar to show. The menu itself has the id 0; its
/// lines have ids that no earlier layout had, so that a press on a stale line means nothing.
class MenuService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    MenuService() { registerMenuMessages(); }

    static uint version() { return 3; }
    static QString status() { return QStringLiteral("normal"); }
    static QString textDirection() { return QStringLiteral("ltr"); }
    static QStringList iconThemePath() { return {}; }

    void setItems(const QList<MenuItem>& items);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): slots are what the bus sees
    // NOLINTBEGIN(readability-identifier-naming): the names are the bus's
    Q_SCRIPTABLE uint GetLayout(int parent, int depth, const QStringList& names,
                                quib::MenuNode& layout);
    Q_SCRIPTABLE QList<quib::MenuProperties> GetGroupProperties(const QList<int>& ids,
                                                                const QStringList& names);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& kind, const QDBusVariant& data, uint time);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<quib::MenuEvent>& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds);

Q_SIGNALS:
    // NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): moc has its own names
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<quib::MenuProperties>& updated,
                                             const QList<quib::MenuPropertyNames>& removed);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);
    // NOLINTEND(readability-inconsistent-declaration-parameter-name)
    // NOLINTEND(readability-identifier-naming)

    /// What `setItems` is told before this returns is what the status bar shows.
    void willOpen();
    /// After the status bar has had its answer.
    void chosen(int row);

private:
    bool isLayoutOf(const QList<MenuItem>& items) const;
    void showCheckMarks(const QList<MenuItem>& items);
    /// The row that has the id.
    std::optional<qsizetype> row(int id) const;
    int id(qsizetype row) const { return m_firstId + static_cast<int>(row); }
    bool isKnown(int id) const;
    QVariantMap properties(int id, const QStringList& names) const;
    bool open();
    bool take(int id, const QString& kind);

    QList<MenuItem> m_items;
    int m_firstId = 1;
    uint m_revision = 1;
    uint m_changes = 0; ///< Of the layout and of check marks.
};

} // namespace quib
