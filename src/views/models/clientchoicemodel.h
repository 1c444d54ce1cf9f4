#pragma once

#include "model/store.h"
#include "views/core/noclient.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// One entry of a menu of clients.
struct ClientChoice {
    QUuid id; ///< Of the entry.
    QUuid clientID = NoClient::id();
    QString title;
    bool isChecked = false;
    bool isSeparator = false;

    bool operator==(const ClientChoice&) const = default;
};

/// The entries of a menu in which a client is chosen: the placeholder for none, a separator, then
/// every client in display order.
class ClientChoiceModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    Q_PROPERTY(QUuid selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY choicesChanged)

public:
    enum Role { TitleRole = Qt::UserRole, CheckedRole, SeparatorRole };

    using RecordListModel::RecordListModel;

    Store* store() const { return m_store; }
    bool isShown() const { return m_isShown; }
    QString placeholder() const { return m_placeholder; }
    QUuid selection() const { return m_selection; } ///< May be no client.
    int selectedRow() const; ///< The placeholder's where the selected client is gone.
    /// The client of a row; none for the placeholder and for what is no row.
    Q_INVOKABLE QUuid clientAt(int row) const;

    /// Borrowed: only the placeholder is left once the store is gone.
    void setStore(Store* store);
    /// While nobody sees it, it follows nothing; shown again it catches up.
    void setShown(bool isShown);
    void setPlaceholder(const QString& placeholder);
    void setSelection(const QUuid& selection);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void storeChanged();
    void shownChanged();
    void placeholderChanged();
    void selectionChanged();
    void choicesChanged();

private:
    void follow();
    QList<ClientChoice> wanted() const;

    QPointer<Store> m_store;
    bool m_isShown = true;
    QString m_placeholder;
    QUuid m_selection = NoClient::id();
    QList<ClientChoice> m_choices;
};

} // namespace quib
