#include "views/models/totallistmodel.h"

#include "model/locale/period.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double SecondsPerHour = 3600;

/// A rate may be as large as a number can be: what it earns is no infinity.
double finite(double figure)
{
    constexpr auto Most = std::numeric_limits<double>::max();
    return std::clamp(figure, -Most, Most);
}

template <typename Record>
double sumOf(const QList<Record>& records, double Record::*figure)
{
    double sum = 0;
    for (const auto& record : records) {
        sum = finite(sum + record.*figure);
    }
    return sum;
}

} // namespace

QList<TotalRecord> totalRecords(const QList<ClientTotal>& totals)
{
    const auto all = sumOf(totals, &ClientTotal::seconds);
    QList<TotalRecord> records;
    records.reserve(totals.size());
    for (const auto& [client, seconds] : totals) {
        const auto fraction = all > 0 ? std::clamp(seconds / all, 0.0, 1.0) : 0;
        const auto amount = client ? finite(seconds / SecondsPerHour * client->hourlyRate) : 0;
        records.append({.id = client ? client->id : QUuid(),
                        .name = client ? client->name : u"No client"_s,
                        .status = client ? rawText(client->status) : QString(),
                        .seconds = seconds,
                        .fraction = fraction,
                        .amount = amount});
    }
    return records;
}

TotalListModel::TotalListModel(QObject* parent)
    : StoreListModel({&Store::entriesChanged, &Store::clientsChanged}, parent)
{
    setRoles(m_totals,
             {{"name", &TotalRecord::name},
              {"status", &TotalRecord::status},
              {"seconds", &TotalRecord::seconds},
              {"fraction", &TotalRecord::fraction},
              {"amount", &TotalRecord::amount}});
}

void TotalListModel::setShown(bool isShown)
{
    if (m_isShown == isShown) {
        return;
    }
    m_isShown = isShown;
    follow();
    Q_EMIT shownChanged();
}

void TotalListModel::setPeriod(Period period)
{
    if (m_period == period) {
        return;
    }
    m_period = period;
    follow();
    Q_EMIT periodChanged();
}

void TotalListModel::follow()
{
    if (!m_isShown) {
        return;
    }
    show(m_totals, store() ? totalRecords(store()->totals(since())) : QList<TotalRecord>(),
         &TotalRecord::id);
    addUp();
}

QDateTime TotalListModel::since() const
{
    return m_period == Period::Week ? startOfWeek(store()->now(), store()->locale())
                                    : startOfMonth(store()->now(), store()->locale());
}

void TotalListModel::addUp()
{
    const auto seconds = sumOf(m_totals, &TotalRecord::seconds);
    const auto amount = sumOf(m_totals, &TotalRecord::amount);
    if (m_totalSeconds != seconds || m_totalAmount != amount) {
        m_totalSeconds = seconds;
        m_totalAmount = amount;
        Q_EMIT totalsChanged();
    }
}

} // namespace quib
