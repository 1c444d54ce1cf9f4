#include "platform/linux/harmlesssvg.h"

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
            noteUse(hrefOf(attributes));
        } else if (reader.name() == "image"_L1) {
            m_isHarmless = m_isHarmless && ++m_pictures <= MostPictures
                && hrefOf(attributes).startsWith("data:"_L1);
        }
    }

    /// What is used must not use others in turn: each level could double the work.
    void noteUse(const QString& href)
    {
        m_isHarmless = m_isHarmless && ++m_uses <= MostUses;
        m_used << href.sliced(href.startsWith(u'#') ? 1 : 0);
        for (const auto& id : std::as_const(m_openIds)) {
            if (!id.isEmpty()) {
                m_idsAroundUses << id;
            }
        }
    }

    static QString hrefOf(const QXmlStreamAttributes& attributes)
    {
        const auto href
            = std::ranges::find_if(attributes, [](const QXmlStreamAttribute& attribute) {
                  return attribute.name() == "href"_L1;
              });
        return href == attributes.end() ? QString() : href->value().toString().trimmed();
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
