#pragma once

#include "views/accessibility/accessibleitem.h"

#include <optional>

namespace quib {

/// What readers are told of a text that is edited, a TextInput or a TextEdit, and how they edit it.
class AccessibleField : public AccessibleItem,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
public:
    using AccessibleItem::AccessibleItem;

    QAccessible::State state() const override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text type, const QString& text) override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

private:
    std::optional<int> nearestPosition(const QPoint& point) const;
    QString content() const;
};

} // namespace quib
