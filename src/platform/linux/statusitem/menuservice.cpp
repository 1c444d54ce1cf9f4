#include "platform/linux/statusitem/menuservice.h"

#include <QDBusError>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int Menu = 0;

const auto ToggleState = u"toggle-state"_s;

QString label(const QString& title)
{
    return QString(title).replace(u"_"_s, u"__"_s); // A single one would mark the next letter.
}

QVariantMap menuProperties()
{
    return {{u"children-display"_s, u"submenu"_s}};
}

QVariantMap itemProperties(const MenuItem& item)
{
    QVariantMap properties{{u"enabled"_s, true}, {u"visible"_s, true}};
    if (item.isSeparator()) {
        properties.insert(u"type"_s, u"separator"_s);
        return properties;
    }
    properties.insert(u"type"_s, u"standard"_s);
    properties.insert(u"label"_s, label(item.title));
    if (item.isCheckable) {
        properties.insert(u"toggle-type"_s, u"checkmark"_s);
        properties.insert(ToggleState, int(item.isChecked));
    }
    if (!item.keyEquivalent.isEmpty()) {
        const QList<QStringList> shortcut{{u"Control"_s, item.keyEquivalent}};
        properties.insert(u"shortcut"_s, QVariant::fromValue(shortcut));
    }
    return properties;
}

} // namespace

void MenuService::setItems(const QList<MenuItem>& items)
{
    if (items == m_items) {
        return;
    }
    ++m_changes;
    if (isLayoutOf(items)) {
        showCheckMarks(items);
        return;
    }
    m_firstId += static_cast<int>(m_items.size());
    m_items = items;
    Q_EMIT LayoutUpdated(++m_revision, Menu);
}

bool MenuService::isLayoutOf(const QList<MenuItem>& items) const
{
    return std::ranges::equal(m_items, items, [](const MenuItem& shown, MenuItem wanted) {
        wanted.isChecked = shown.isChecked;
        return wanted == shown;
    });
}

void MenuService::showCheckMarks(const QList<MenuItem>& items)
{
    QList<MenuProperties> updated;
    for (qsizetype row = 0; row < items.size(); ++row) {
        if (items[row] != m_items[row]) {
            updated.append({id(row), {{ToggleState, int(items[row].isChecked)}}});
        }
    }
    m_items = items;
    Q_EMIT ItemsPropertiesUpdated(updated, {});
}

std::optional<qsizetype> MenuService::row(int id) const
{
    const auto row = qsizetype(id) - m_firstId;
    return row >= 0 && row < m_items.size() ? std::optional(row) : std::nullopt;
}

bool MenuService::isKnown(int id) const
{
    return id == Menu || row(id);
}

QVariantMap MenuService::properties(int id, const QStringList& names) const
{
    auto properties = id == Menu ? menuProperties() : itemProperties(m_items[*row(id)]);
    if (!names.isEmpty()) {
        properties.removeIf([&names](const auto& entry) { return !names.contains(entry.key()); });
    }
    return properties;
}

uint MenuService::GetLayout(int parent, int depth, const QStringList& names, MenuNode& layout)
{
    if (!isKnown(parent)) {
        sendErrorReply(QDBusError::InvalidArgs, u"no such item"_s);
        return 0;
    }
    layout = {.id = parent, .properties = properties(parent, names), .children = {}};
    if (parent == Menu && depth != 0) {
        for (qsizetype row = 0; row < m_items.size(); ++row) {
            const MenuNode child{
                .id = id(row), .properties = properties(id(row), names), .children = {}};
            layout.children.append(QDBusVariant(QVariant::fromValue(child)));
        }
    }
    return m_revision;
}

QList<MenuProperties> MenuService::GetGroupProperties(const QList<int>& ids,
                                                      const QStringList& names)
{
    QList<MenuProperties> group;
    const auto add = [&](int id) {
        if (ids.isEmpty() || ids.contains(id)) { // Each once, however often it is asked for.
            group.append({id, properties(id, names)});
        }
    };
    add(Menu);
    for (qsizetype row = 0; row < m_items.size(); ++row) {
        add(id(row));
    }
    return group;
}

QDBusVariant MenuService::GetProperty(int id, const QString& name)
{
    const auto found = isKnown(id) ? properties(id, {}).value(name) : QVariant();
    if (!found.isValid()) {
        sendErrorReply(QDBusError::InvalidArgs, u"no such item or property"_s);
    }
    return QDBusVariant(found);
}

void MenuService::Event(int id, const QString& kind, const QDBusVariant& /*data*/, uint /*time*/)
{
    if (!take(id, kind)) {
        sendErrorReply(QDBusError::InvalidArgs, u"no such item"_s);
    }
}

QList<int> MenuService::EventGroup(const QList<MenuEvent>& events)
{
    QList<int> unknownIds;
    for (const auto& event : events) {
        if (!take(event.id, event.kind)) {
            unknownIds.append(event.id);
        }
    }
    return unknownIds;
}

bool MenuService::AboutToShow(int id)
{
    if (!isKnown(id)) {
        sendErrorReply(QDBusError::InvalidArgs, u"no such item"_s);
        return false;
    }
    return id == Menu && open();
}

QList<int> MenuService::AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds)
{
    std::ranges::copy_if(ids, std::back_inserter(unknownIds),
                         [this](int id) { return !isKnown(id); });
    return ids.contains(Menu) && open() ? QList<int>{Menu} : QList<int>{};
}

bool MenuService::open()
{
    const auto before = m_changes;
    Q_EMIT willOpen();
    return m_changes != before;
}

/// False for an id that is nobody's.
bool MenuService::take(int id, const QString& kind)
{
    const auto row = this->row(id);
    if (id == Menu && kind == "opened"_L1) {
        open(); // Some status bars tell only this.
    } else if (row && kind == "clicked"_L1 && !m_items[*row].isSeparator()) {
        // Answered first: a command may take its time, or end the program.
        QMetaObject::invokeMethod(
            this, [this, row = int(*row)] { Q_EMIT chosen(row); }, Qt::QueuedConnection);
    }
    return isKnown(id);
}

} // namespace quib
