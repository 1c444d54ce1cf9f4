#pragma once

#include <QPointer>
#include <QQuickTextDocument>

#include <qqmlintegration.h>

namespace quib {

/// What an item with a document says of a value: the value to the letter until somebody edits it,
/// and again whenever it becomes another text. Not in script, to which a megabyte is dear.
class TypedText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document READ document WRITE setDocument NOTIFY documentChanged
                   REQUIRED)
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(bool isSettling READ isSettling WRITE setSettling NOTIFY isSettlingChanged)

public:
    using QObject::QObject;

    QQuickTextDocument* document() const { return m_document; }
    QString value() const { return m_value; }
    QString text() const { return m_text; } ///< The value, or what somebody made of it.
    bool isSettling() const { return m_isSettling; } ///< What changes in the document is no edit.

    /// Also has it laid out in even lines.
    void setDocument(QQuickTextDocument* document);
    void setValue(const QString& value);
    void setSettling(bool isSettling);

    /// The document may have changed.
    Q_INVOKABLE void follow();
    /// Somebody added this to the end; what is there stays to the letter.
    Q_INVOKABLE void append(const QString& addition);

Q_SIGNALS:
    void documentChanged();
    void valueChanged();
    void textChanged();
    void isSettlingChanged();
    void said(); ///< The text is the value again, and to be drawn.
    void edited();

private:
    QPointer<QQuickTextDocument> m_document;
    QString m_value;
    QString m_text;
    QString m_drawn; ///< To tell an edit from all else that a document changes by.
    bool m_isSettling = true; ///< Till the item is complete: it takes its first text then.
};

} // namespace quib
