#pragma once

#include "shortcuts/shortcuts.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The groups of the user's shortcuts as rows, in the order of the file. A title tells a group
/// apart: one that was edited stays where it is.
class ShortcutGroupModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Shortcuts* shortcuts READ shortcuts WRITE setShortcuts NOTIFY shortcutsChanged
                   REQUIRED)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    explicit ShortcutGroupModel(QObject* parent = nullptr);

    Shortcuts* shortcuts() const { return m_shortcuts; }
    QString problem() const; ///< Empty while there is none.

    /// Borrowed: the rows are empty once they are gone.
    void setShortcuts(Shortcuts* shortcuts);

Q_SIGNALS:
    void shortcutsChanged();
    void problemChanged();

private:
    void follow();

    QPointer<Shortcuts> m_shortcuts;
    QList<ShortcutGroup> m_groups;
};

} // namespace quib
