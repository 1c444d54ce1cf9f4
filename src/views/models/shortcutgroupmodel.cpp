#include "views/models/shortcutgroupmodel.h"

#include "brand/brand.h"
#include "views/core/followsource.h"

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// Drawn in its colour, which every group is but those of the usual one.
bool isGold(const ShortcutGroup& group)
{
    return group.color.value_or(u"purple"_s).toLower() != "purple"_L1;
}

} // namespace

QString ShortcutGroupModel::problem() const
{
    return m_shortcuts ? m_shortcuts->problem().value_or(QString()) : QString();
}

void ShortcutGroupModel::setShortcuts(Shortcuts* shortcuts)
{
    if (followSource(m_shortcuts, shortcuts, this, &ShortcutGroupModel::follow,
                     &Shortcuts::groupsChanged, &Shortcuts::problemChanged)) {
        Q_EMIT shortcutsChanged();
    }
}

int ShortcutGroupModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_groups.size());
}

QVariant ShortcutGroupModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& group = m_groups.at(index.row()).group;
    switch (role) {
    case TitleRole: return group.title;
    case TintRole: return Brand::named(group.color);
    case GoldRole: return isGold(group);
    case GroupRole: return QVariant::fromValue(group);
    }
    return {};
}

QHash<int, QByteArray> ShortcutGroupModel::roleNames() const
{
    return {{TitleRole, "title"}, {TintRole, "tint"}, {GoldRole, "gold"}, {GroupRole, "group"}};
}

void ShortcutGroupModel::follow()
{
    QList<GroupRecord> records;
    if (m_shortcuts) {
        for (const auto& group : m_shortcuts->groups()) {
            records.append({.id = QUuid::createUuidV5({}, group.title), .group = group});
        }
    }
    show(m_groups, records);
    Q_EMIT problemChanged();
}

} // namespace quib
