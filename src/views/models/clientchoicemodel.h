#pragma once

#include "views/core/noclient.h"
#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// One entry of a menu of clients.
struct ClientChoice {
    QUuid clientID = NoClient::id();
    QString title;
    bool isChecked = false;
    bool isSeparator = false;

    bool operator==(const ClientChoice&) const = default;
};

/// The entries of a menu in which a client is chosen: the placeholder for none, a separator, then
/// every client in display order.
class ClientChoiceModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    Q_PROPERTY(QUuid selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY choicesChanged)

public:
    explicit ClientChoiceModel(QObject* parent = nullptr);

    bool isShown() const { return m_isShown; }
    QString placeholder() const { return m_placeholder; }
    QUuid selection() const { return m_selection; } ///< May be no client.
    int selectedRow() const; ///< The placeholder's where the selected client is gone.
    /// The client of a row; none for the placeholder and for what is no row.
    Q_INVOKABLE QUuid clientAt(int row) const;

    /// While nobody sees it, it follows nothing; shown again it catches up.
    void setShown(bool isShown);
    void setPlaceholder(const QString& placeholder);
    void setSelection(const QUuid& selection);

Q_SIGNALS:
    void shownChanged();
    void placeholderChanged();
    void selectionChanged();
    void choicesChanged();

private:
    void follow() override;
    QList<ClientChoice> wanted() const;

    bool m_isShown = true;
    QString m_placeholder;
    QUuid m_selection = NoClient::id();
    QList<ClientChoice> m_choices;
};

} // namespace quib
