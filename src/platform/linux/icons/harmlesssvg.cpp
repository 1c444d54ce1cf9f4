#include "platform/linux/icons/harmlesssvg.h"

#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int DeepestNesting = 60;
constexpr int MostElements = 20'000;
constexpr int MostUses = 500;
constexpr int MostPictures = 4;

constexpr auto Base64Mark = "base64,"_L1;
constexpr auto PngMagic = "\x89PNG";
constexpr auto JpegMagic = "\xff\xd8\xff";

/// By what it begins with: whatever it is called, Qt would draw another drawing, uninspected.
bool isPictureItself(const QString& href)
{
    const auto start = href.lastIndexOf(Base64Mark);
    if (!href.startsWith("data:image/"_L1) || start < 0) {
        return false;
    }
    const auto bytes = QByteArray::fromBase64(href.sliced(start + Base64Mark.size()).toLatin1());
    return bytes.startsWith(PngMagic) || bytes.startsWith(JpegMagic);
}

/// Reads a drawing once, and notes what could make it grow while it is drawn.
class Inspection {
public:
    bool passes(const QByteArray& svg)
    {
        QXmlStreamReader reader(svg);
        while (!reader.atEnd() && m_isHarmless) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::StartElement) {
                begin(reader);
            } else if (token == QXmlStreamReader::EndElement) {
                m_openIds.removeLast();
            } else if (token == QXmlStreamReader::ProcessingInstruction) {
                m_isHarmless = false; // It may name a style sheet, which Qt would read.
            }
        }
        return m_isHarmless && !reader.hasError() && !m_used.intersects(m_idsAroundUses);
    }

private:
    void begin(const QXmlStreamReader& reader)
    {
        const auto attributes = reader.attributes();
        m_openIds << attributes.value("id"_L1).toString();
        m_isHarmless = m_openIds.size() <= DeepestNesting && ++m_elements <= MostElements;
        if (reader.name() == "use"_L1) {
            noteUse(hrefsOf(attributes));
        } else if (reader.name() == "image"_L1) {
            m_isHarmless = m_isHarmless && ++m_pictures <= MostPictures
                && std::ranges::all_of(hrefsOf(attributes), isPictureItself);
        }
    }

    /// What is used must not use others in turn: each level could double the work.
    void noteUse(const QStringList& hrefs)
    {
        m_isHarmless = m_isHarmless && ++m_uses <= MostUses;
        for (const auto& href : hrefs) {
            m_used << href.sliced(href.startsWith(u'#') ? 1 : 0);
        }
        for (const auto& id : std::as_const(m_openIds)) {
            if (!id.isEmpty()) {
                m_idsAroundUses << id;
            }
        }
    }

    /// With a prefix and without: an element may have both.
    static QStringList hrefsOf(const QXmlStreamAttributes& attributes)
    {
        QStringList hrefs;
        for (const auto& attribute : attributes) {
            if (attribute.name() == "href"_L1) {
                hrefs << attribute.value().toString().trimmed();
            }
        }
        return hrefs;
    }

    bool m_isHarmless = true;
    int m_elements = 0;
    int m_uses = 0;
    int m_pictures = 0;
    QStringList m_openIds; ///< Of the elements that have not ended; empty for those without.
    QSet<QString> m_used;
    QSet<QString> m_idsAroundUses;
};

} // namespace

bool isHarmlessSvg(const QByteArray& svg)
{
    return Inspection().passes(svg);
}

} // namespace quib
