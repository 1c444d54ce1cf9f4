#pragma once

#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// The time worked for one client, as its row shows it.
struct TotalRecord {
    QUuid id; ///< The client's; null for unassigned time, and where the client is gone.
    QString name;
    QString status; ///< Raw text; empty without a client.
    double seconds = 0;
    double fraction = 0; ///< Of the time of all rows, 0 to 1.
    double amount = 0; ///< In the user's currency.

    bool operator==(const TotalRecord&) const = default;
};

/// In the order of the totals. Entries that end before they start can outweigh all others: where
/// the sum is not above zero there are no shares.
QList<TotalRecord> totalRecords(const QList<ClientTotal>& totals);

/// The time worked per client in the running week or month of the user's calendar. Follows the
/// store, but not the clock: while time passes, somebody has to refresh().
class TotalListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(Period period READ period WRITE setPeriod NOTIFY periodChanged)
    Q_PROPERTY(double totalSeconds READ totalSeconds NOTIFY totalsChanged)
    Q_PROPERTY(double totalAmount READ totalAmount NOTIFY totalsChanged)

public:
    enum class Period { Week, Month };
    Q_ENUM(Period)

    explicit TotalListModel(QObject* parent = nullptr);

    bool isShown() const { return m_isShown; }
    Period period() const { return m_period; }
    double totalSeconds() const { return m_totalSeconds; }
    double totalAmount() const { return m_totalAmount; } ///< In the user's currency.

    /// While nobody sees it, it follows nothing; shown again it catches up.
    void setShown(bool isShown);
    void setPeriod(Period period);
    /// Looks at the clock anew.
    Q_INVOKABLE void refresh() { follow(); }

Q_SIGNALS:
    void shownChanged();
    void periodChanged();
    void totalsChanged();

private:
    void follow() override;
    QDateTime since() const;
    void addUp();

    bool m_isShown = true;
    Period m_period = Period::Week;
    QList<TotalRecord> m_totals;
    double m_totalSeconds = 0;
    double m_totalAmount = 0;
};

} // namespace quib
