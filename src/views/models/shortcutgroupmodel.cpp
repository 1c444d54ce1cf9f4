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

ShortcutGroupModel::ShortcutGroupModel(QObject* parent)
    : RecordListModel(parent)
{
    setRoles(m_groups,
             {{"title", &ShortcutGroup::title},
              {"tint", [](const ShortcutGroup& group) { return Brand::named(group.color); }},
              {"gold", isGold},
              {"group", [](const ShortcutGroup& group) { return QVariant::fromValue(group); }}});
}

QString ShortcutGroupModel::problem() const
{
    return m_shortcuts ? m_shortcuts->problem().value_or(QString()) : QString();
}

void ShortcutGroupModel::setShortcuts(Shortcuts* shortcuts)
{
    if (followSource(m_shortcuts, shortcuts, this, &ShortcutGroupModel::follow,
                     {&Shortcuts::groupsChanged, &Shortcuts::problemChanged})) {
        Q_EMIT shortcutsChanged();
    }
}

void ShortcutGroupModel::follow()
{
    show(m_groups, m_shortcuts ? m_shortcuts->groups() : QList<ShortcutGroup>(),
         &ShortcutGroup::title);
    Q_EMIT problemChanged();
}

} // namespace quib
