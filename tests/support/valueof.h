#pragma once

#include <QAbstractItemModel>

/// What a row of a list says to views under that name.
inline QVariant valueOf(const QAbstractItemModel& model, int row, const QByteArray& role)
{
    return model.index(row, 0).data(model.roleNames().key(role));
}
