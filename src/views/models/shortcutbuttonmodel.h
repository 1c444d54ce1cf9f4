#pragma once

#include "shortcuts/shortcutconfig.h"
#include "views/models/recordlistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// The buttons of one group as rows, in the order of the file. Name and place tell one apart.
/// A button has a symbol, or else the full path of an application whose picture it shows.
class ShortcutButtonModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::ShortcutGroup group READ group WRITE setGroup NOTIFY groupChanged REQUIRED)

public:
    explicit ShortcutButtonModel(QObject* parent = nullptr);

    const ShortcutGroup& group() const { return m_group; }
    void setGroup(const ShortcutGroup& group);

Q_SIGNALS:
    void groupChanged();

private:
    ShortcutGroup m_group;
    QList<ShortcutButton> m_buttons;
};

} // namespace quib
