#pragma once

#include <QObject>
#include <QUuid>

#include <qqmlintegration.h>

namespace quib {

/// The id that stands for no client, where QML knows no absent values.
class NoClient : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QUuid id READ id CONSTANT)

public:
    using QObject::QObject;

    static QUuid id() { return {}; }
};

} // namespace quib
