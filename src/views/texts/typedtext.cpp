#include "views/texts/typedtext.h"

#include "views/texts/evenlinelayout.h"

#include <QTextDocument>

#include <utility>

namespace quib {

namespace {

/// The texts that Qt gives lose spaces at which no line breaks and make line ends of separators.
QString rawText(const QQuickTextDocument* document)
{
    return document
        ? document->textDocument()->toRawText().replace(QChar::ParagraphSeparator, u'\n')
        : QString();
}

} // namespace

void TypedText::setDocument(QQuickTextDocument* document)
{
    if (m_document == document) {
        return;
    }
    m_document = document;
    if (m_document) {
        auto* text = m_document->textDocument();
        text->setDocumentLayout(new EvenLineLayout(text));
    }
    Q_EMIT documentChanged();
}

void TypedText::setValue(const QString& value)
{
    if (m_value == value) {
        return;
    }
    m_value = value;
    Q_EMIT valueChanged();
    if (m_text != m_value) {
        m_text = m_value;
        Q_EMIT textChanged();
        Q_EMIT said();
    }
}

void TypedText::setSettling(bool isSettling)
{
    if (m_isSettling != isSettling) {
        m_isSettling = isSettling;
        Q_EMIT isSettlingChanged();
    }
}

void TypedText::follow()
{
    auto drawn = rawText(m_document);
    if (m_drawn == drawn) {
        return;
    }
    m_drawn = std::move(drawn);
    if (!m_isSettling) {
        m_text = m_drawn;
        Q_EMIT textChanged();
        Q_EMIT edited();
    }
}

void TypedText::append(const QString& addition)
{
    m_text += addition;
    Q_EMIT textChanged();
    Q_EMIT edited();
}

} // namespace quib
