#pragma once

#include "shortcuts/shortcutconfig.h"
#include "views/models/recordlistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// A button as lists show it. Its name and where it leads tell it apart.
struct ButtonRecord {
    QUuid id;
    ShortcutButton button;

    bool operator==(const ButtonRecord&) const = default;
};

/// The buttons of one group as rows, in the order of the file.
class ShortcutButtonModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::ShortcutGroup group READ group WRITE setGroup NOTIFY groupChanged REQUIRED)

public:
    /// A button has a symbol, or else the full path of an application whose picture it shows.
    enum Role { NameRole = Qt::UserRole, SymbolRole, ApplicationRole, UrlRole };

    using RecordListModel::RecordListModel;

    const ShortcutGroup& group() const { return m_group; }
    void setGroup(const ShortcutGroup& group);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void groupChanged();

private:
    ShortcutGroup m_group;
    QList<ButtonRecord> m_buttons;
};

} // namespace quib
