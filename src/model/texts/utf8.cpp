#include "model/texts/utf8.h"

#include <QStringDecoder>

using namespace std::string_view_literals;

namespace quib {

namespace {

constexpr auto ByteOrderMark = "\xEF\xBB\xBF"sv;

QString withoutHalves(QString text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool startsPair = text.at(at).isHighSurrogate() && at + 1 < text.size()
            && text.at(at + 1).isLowSurrogate();
        if (startsPair) {
            ++at;
        } else if (text.at(at).isSurrogate()) {
            text[at] = QChar::ReplacementCharacter;
        }
    }
    return text;
}

} // namespace

QByteArray utf8Bytes(const QString& text)
{
    return text.isValidUtf16() ? text.toUtf8() : withoutHalves(text).toUtf8();
}

QString utf8Text(std::string_view bytes)
{
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (!bytes.starts_with(ByteOrderMark)) {
        return QString::fromUtf8(view);
    }
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(view);
}

} // namespace quib
