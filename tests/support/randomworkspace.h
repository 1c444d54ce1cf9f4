#pragma once

#include "model/records/quibdata.h"
#include "model/time/utc.h"

#include <QRandomGenerator>

#include <array>
#include <cmath>
#include <limits>

/// Workspaces of any content that a user or a hand-edited file could bring about: odd texts, rates
/// without measure, ids that repeat or name nobody. The same seed gives the same workspace.
class RandomWorkspace {
public:
    explicit RandomWorkspace(quint32 seed)
        : m_random(seed)
    {
    }

    quib::QuibData make()
    {
        quib::QuibData data;
        data.clients = list<quib::Client>([this] { return client(); });
        data.tasks = list<quib::TaskItem>([this] { return task(); });
        data.entries = list<quib::TimeEntry>([this] { return entry(); });
        data.shelf = list<quib::ShelfItem>(
            [this] { return quib::ShelfItem{.id = id(), .path = u'/' + text()}; });
        data.launch = list<quib::LaunchItem>(
            [this] { return quib::LaunchItem{.id = id(), .name = text(), .target = text()}; });
        data.notes = text();
        return data;
    }

private:
    int below(int bound) { return static_cast<int>(m_random.bounded(bound)); }

    template <typename T, typename Make>
    QList<T> list(Make make)
    {
        QList<T> items;
        const int count = below(8) == 0 ? below(200) : below(6);
        for (int i = 0; i < count; ++i) {
            items << make();
        }
        return items;
    }

    QUuid id()
    {
        if (below(10) == 0) {
            return {};
        }
        m_lastId = below(6) == 0
            ? m_lastId
            : QUuid(m_random.generate(), ushort(below(65536)), ushort(below(65536)),
                    uchar(below(256)), uchar(below(256)), uchar(below(256)), uchar(below(256)),
                    uchar(below(256)), uchar(below(256)), uchar(below(256)), uchar(below(256)));
        return m_lastId;
    }

    std::optional<QUuid> perhapsId() { return below(3) == 0 ? std::nullopt : std::optional(id()); }

    /// Of all scripts and of none: controls, separators, NUL, what looks like markup or like JSON.
    QString text()
    {
        static constexpr std::array<QStringView, 38> Pieces{
            u"a",      u"b",          u"c",          u" ",      u"0",      u"1",      u"9",
            u"/",      u"\\",         u"\"",         u"'",      u"<",      u">",      u"&",
            u"{",      u"}",          u"[",          u"]",      u":",      u",",      u"\n",
            u"\r",     u"\t",         u"\u00e9",     u"\u05d0", u"\u0639", u"\u3042", u"\u200d",
            u"\u200f", u"\u202e",     u"\u2028",     u"\u2029", u"\ue000", u"\ufeff", u"\ufffd",
            u"\uffff", u"\U0001f600", u"\U0001f468",
        };
        QString text;
        const int length = below(12) == 0 ? below(2000) : below(20);
        while (text.size() < length) {
            switch (below(10)) {
            case 0: text += QChar(below(32)); break;
            case 1:
                text += QString::fromUcs4(std::array{char32_t(0x10000 + below(0xfffff))}.data(), 1);
                break;
            case 2: text += QChar(0x80 + below(0xd800 - 0x80)); break;
            default: text += Pieces.at(std::size_t(below(int(Pieces.size())))); break;
            }
        }
        return text;
    }

    double rate()
    {
        switch (below(6)) {
        case 0: return below(200);
        case 1: return below(100'000) / 100.0;
        case 2: return -0.0;
        case 3: return std::numeric_limits<double>::max();
        case 4: return std::ldexp(m_random.generateDouble(), below(2000) - 1000);
        default: return -1e20;
        }
    }

    /// Of any year that the file's form has, in whole seconds.
    QDateTime moment()
    {
        const auto first = QDateTime(QDate(1, 1, 1), QTime(0, 0), quib::Utc).toSecsSinceEpoch();
        const auto last
            = QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), quib::Utc).toSecsSinceEpoch();
        return QDateTime::fromSecsSinceEpoch(
            first + static_cast<qint64>(m_random.generateDouble() * double(last - first)),
            quib::Utc);
    }

    quib::Client client()
    {
        return {.id = id(),
                .name = text(),
                .status = quib::AllClientStatuses.at(std::size_t(below(6))),
                .siteURL = text(),
                .folderPath = text(),
                .hourlyRate = rate(),
                .notes = text()};
    }

    quib::TaskItem task()
    {
        return {.id = id(),
                .title = text(),
                .clientID = perhapsId(),
                .done = below(2) == 0,
                .created = moment()};
    }

    quib::TimeEntry entry()
    {
        return {.id = id(),
                .clientID = perhapsId(),
                .start = moment(),
                .end = below(4) == 0 ? std::nullopt : std::optional(moment()),
                .note = text()};
    }

    QRandomGenerator m_random;
    QUuid m_lastId;
};
