#include "views/texts/pastedline.h"

#include "views/texts/textline.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quib {

namespace {

QString pasted(QClipboard::Mode mode)
{
    const auto text = QGuiApplication::clipboard()->text(mode);
    const auto line = TextLine::unbroken(text);
    return line == text ? text : line.trimmed();
}

} // namespace

QString PastedLine::ofClipboard()
{
    return pasted(QClipboard::Clipboard);
}

QString PastedLine::ofSelection()
{
    return QGuiApplication::clipboard()->supportsSelection() ? pasted(QClipboard::Selection)
                                                             : QString();
}

} // namespace quib
