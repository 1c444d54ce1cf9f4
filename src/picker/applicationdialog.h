#pragma once

#include "integrations/opening/appcatalog.h"

#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSortFilterProxyModel>

namespace quib {

/// Chooses one of the installed applications: typing narrows the list, the arrows move in it,
/// Return takes what is highlighted.
class ApplicationDialog : public QDialog {
    Q_OBJECT

public:
    explicit ApplicationDialog(const QList<Application>& applications);

    /// Path of the one that is highlighted; empty where none is.
    QString chosen() const;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void arrange();
    void narrow(const QString& text);
    void followHighlight();

    QLineEdit m_search;
    QListView m_list;
    QSortFilterProxyModel m_shown;
    QPushButton* m_open = nullptr; ///< Owned by its row of buttons.
};

} // namespace quib
