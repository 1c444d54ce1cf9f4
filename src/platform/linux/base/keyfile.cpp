#include "platform/linux/base/keyfile.h"

#include "model/file/wholefile.h"
#include "model/texts/nativepath.h"

namespace quib {

namespace {

constexpr qsizetype LargestKeyFile = 1'000'000;

} // namespace

KeyFile::KeyFile(const QString& path)
    : m_file(g_key_file_new())
{
    const auto bytes = wholeFile(nativePath(path), LargestKeyFile);
    m_isWhole = bytes
        && g_key_file_load_from_data(m_file.get(), bytes->constData(),
                                     static_cast<gsize>(bytes->size()), G_KEY_FILE_NONE, nullptr)
            == TRUE;
}

QString KeyFile::firstGroup() const
{
    return QString::fromUtf8(GText(g_key_file_get_start_group(m_file.get())).get());
}

bool KeyFile::has(const QString& group, const char* key) const
{
    return g_key_file_has_key(m_file.get(), group.toUtf8().constData(), key, nullptr) == TRUE;
}

QString KeyFile::text(const QString& group, const char* key) const
{
    const GText value(
        g_key_file_get_string(m_file.get(), group.toUtf8().constData(), key, nullptr));
    return QString::fromUtf8(value.get());
}

QString KeyFile::textInOurLanguage(const QString& group, const char* key) const
{
    const GText value(g_key_file_get_locale_string(m_file.get(), group.toUtf8().constData(), key,
                                                   nullptr, nullptr));
    return QString::fromUtf8(value.get());
}

QStringList KeyFile::list(const QString& group, const char* key) const
{
    QStringList parts;
    for (const auto& part : text(group, key).split(u',', Qt::SkipEmptyParts)) {
        parts << part.trimmed();
    }
    return parts;
}

std::optional<QStringList> KeyFile::entryList(const QString& group, const char* key) const
{
    const GTexts texts(g_key_file_get_string_list(m_file.get(), group.toUtf8().constData(), key,
                                                  nullptr, nullptr));
    if (!texts) {
        return std::nullopt;
    }
    QStringList list;
    for (auto** text = texts.get(); *text != nullptr; ++text) {
        list << QString::fromUtf8(*text);
    }
    return list;
}

bool KeyFile::isOn(const QString& group, const char* key) const
{
    return g_key_file_get_boolean(m_file.get(), group.toUtf8().constData(), key, nullptr) == TRUE;
}

int KeyFile::number(const QString& group, const char* key, int otherwise) const
{
    bool isNumber = false;
    const int value = text(group, key).toInt(&isNumber);
    return isNumber ? value : otherwise;
}

} // namespace quib
