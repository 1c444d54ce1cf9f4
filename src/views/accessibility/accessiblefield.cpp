#include "views/accessibility/accessiblefield.h"

#include <QMetaMethod>

#include <algorithm>

namespace quib {

QAccessible::State AccessibleField::state() const
{
    auto state = AccessibleItem::state();
    state.editable = !state.readOnly;
    state.selectableText = true;
    return state;
}

QString AccessibleField::text(QAccessible::Text type) const
{
    return type == QAccessible::Value ? content() : AccessibleItem::text(type);
}

void AccessibleField::setText(QAccessible::Text type, const QString& text)
{
    if (type == QAccessible::Value) {
        replaceText(0, characterCount(), text);
    }
}

void* AccessibleField::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TextInterface: return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
        return static_cast<QAccessibleEditableTextInterface*>(this);
    default: return AccessibleItem::interface_cast(type);
    }
}

void AccessibleField::selection(int index, int* start, int* end) const
{
    const bool isThere = index < selectionCount();
    *start = isThere ? item().property("selectionStart").toInt() : 0;
    *end = isThere ? item().property("selectionEnd").toInt() : 0;
}

int AccessibleField::selectionCount() const
{
    return item().property("selectionStart") == item().property("selectionEnd") ? 0 : 1;
}

void AccessibleField::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void AccessibleField::removeSelection(int /*index*/)
{
    QMetaObject::invokeMethod(object(), "deselect");
}

void AccessibleField::setSelection(int /*index*/, int start, int end)
{
    QMetaObject::invokeMethod(object(), "select", Q_ARG(int, start), Q_ARG(int, end));
}

int AccessibleField::cursorPosition() const
{
    return item().property("cursorPosition").toInt();
}

void AccessibleField::setCursorPosition(int position)
{
    item().setProperty("cursorPosition", position);
}

QString AccessibleField::text(int start, int end) const
{
    return content().mid(start, end - start);
}

int AccessibleField::characterCount() const
{
    return static_cast<int>(content().size());
}

QRect AccessibleField::characterRect(int offset) const
{
    QRectF here;
    QRectF next;
    const auto place = [this](QRectF& rect, int position) {
        QMetaObject::invokeMethod(object(), "positionToRectangle", Q_RETURN_ARG(QRectF, rect),
                                  Q_ARG(int, position));
    };
    place(here, offset);
    place(next, offset + 1);
    const bool isOneLine = here.top() == next.top();
    return globalRect(isOneLine ? here | next : here);
}

int AccessibleField::offsetAtPoint(const QPoint& point) const
{
    if (!wholeRect().contains(point)) {
        return -1;
    }
    const auto nearest = nearestPosition(point);
    const int end = nearest.value_or(characterCount());
    int offset = nearest ? std::max(0, end - 1) : 0;
    while (offset < end && !characterRect(offset).contains(point)) {
        ++offset;
    }
    return offset;
}

/// Of the cursor, before or after the character at a point. Absent for a TextInput, which tells it
/// to scripts only.
std::optional<int> AccessibleField::nearestPosition(const QPoint& point) const
{
    const auto* type = item().metaObject();
    const auto positionAt = type->method(type->indexOfMethod("positionAt(double,double)"));
    const QRectF place = wholeRect();
    const auto part = point - place.topLeft();
    int position = 0;
    const bool isTold
        = positionAt.invoke(object(), Q_RETURN_ARG(int, position),
                            Q_ARG(double, part.x() / place.width() * item().width()),
                            Q_ARG(double, part.y() / place.height() * item().height()));
    return isTold ? std::optional(position) : std::nullopt;
}

void AccessibleField::scrollToSubstring(int /*start*/, int end)
{
    setCursorPosition(end); // Fields keep their cursor in sight.
}

QString AccessibleField::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleField::deleteText(int start, int end)
{
    replaceText(start, end, {});
}

void AccessibleField::insertText(int offset, const QString& text)
{
    replaceText(offset, offset, text);
}

void AccessibleField::replaceText(int start, int end, const QString& text)
{
    if (item().property("readOnly").toBool()) {
        return;
    }
    QMetaObject::invokeMethod(object(), "remove", Q_ARG(int, start), Q_ARG(int, end));
    QMetaObject::invokeMethod(object(), "insert", Q_ARG(int, start), Q_ARG(QString, text));
}

QString AccessibleField::content() const
{
    return item().property("text").toString();
}

} // namespace quib
