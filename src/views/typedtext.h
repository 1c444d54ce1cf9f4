#pragma once

#include <QQuickTextDocument>
#include <QTextDocument>

#include <qqmlintegration.h>

namespace quib {

/// What somebody typed into a document. The texts that Qt gives lose spaces at which no line breaks
/// and make line ends of separators.
class TypedText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString of(const QQuickTextDocument* document)
    {
        return document->textDocument()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
    }
};

} // namespace quib
