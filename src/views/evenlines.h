#pragma once

#include "views/evenlinelayout.h"

#include <QPointer>
#include <QQuickTextDocument>
#include <QTextDocument>

#include <qqmlintegration.h>

namespace quib {

/// Has the document of an item laid out in even lines.
class EvenLines : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document READ document WRITE setDocument NOTIFY documentChanged
                   REQUIRED)

public:
    using QObject::QObject;

    QQuickTextDocument* document() const { return m_document; }

    void setDocument(QQuickTextDocument* document)
    {
        if (m_document == document) {
            return;
        }
        m_document = document;
        if (document) {
            auto* text = document->textDocument();
            text->setDocumentLayout(new EvenLineLayout(text));
        }
        Q_EMIT documentChanged();
    }

Q_SIGNALS:
    void documentChanged();

private:
    QPointer<QQuickTextDocument> m_document;
};

} // namespace quib
