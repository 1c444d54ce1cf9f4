#pragma once

#include "shortcuts/shortcuts.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// A group as lists show it. Its title tells it apart: a group that was edited stays where it is.
struct GroupRecord {
    QUuid id;
    ShortcutGroup group;

    bool operator==(const GroupRecord&) const = default;
};

/// The groups of the user's shortcuts as rows, in the order of the file.
class ShortcutGroupModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Shortcuts* shortcuts READ shortcuts WRITE setShortcuts NOTIFY shortcutsChanged
                   REQUIRED)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    enum Role { TitleRole = Qt::UserRole, TintRole, GoldRole, GroupRole };

    using RecordListModel::RecordListModel;

    Shortcuts* shortcuts() const { return m_shortcuts; }
    QString problem() const; ///< Empty while there is none.

    /// Borrowed: the rows are empty once they are gone.
    void setShortcuts(Shortcuts* shortcuts);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void shortcutsChanged();
    void problemChanged();

private:
    void follow();

    QPointer<Shortcuts> m_shortcuts;
    QList<GroupRecord> m_groups;
};

} // namespace quib
