#pragma once

#include "integrations/opening/appcatalog.h"

#include <QAbstractListModel>

namespace quib {

/// Installed applications as rows of icon and name. An icon is loaded when it comes into sight.
class ApplicationList : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { PathRole = Qt::UserRole };

    explicit ApplicationList(const QList<Application>& applications, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<Application> m_applications;
};

} // namespace quib
