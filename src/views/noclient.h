#pragma once

#include <QObject>
#include <QUuid>

#include <qqmlintegration.h>

#include <optional>

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

/// What the id of a client in QML means to the core.
inline std::optional<QUuid> clientOrNone(const QUuid& id)
{
    return id == NoClient::id() ? std::nullopt : std::optional(id);
}

} // namespace quib
