#pragma once

#include <QObject>
#include <QUuid>

#include <qqmlintegration.h>

#include <optional>

namespace quib {

/// The id that stands for no client, where QML knows no absent values. No client of a workspace
/// bears it; one that a hand edited may bear the null id.
class NoClient : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QUuid id READ id CONSTANT)

public:
    using QObject::QObject;

    static constexpr QUuid id() { return {0x5e1ec7ed, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3}; }
};

/// What the id of a client in QML means to the store.
inline std::optional<QUuid> clientOrNone(const QUuid& id)
{
    return id == NoClient::id() ? std::nullopt : std::optional(id);
}

/// Has QML pass an id where an operation takes a client or none.
void teachNoClient();

} // namespace quib
