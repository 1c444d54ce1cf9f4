#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace quib {

/// How far the work for a client has come, in pipeline order.
enum class ClientStatus { Lead, Design, Build, Review, Live, Care };

/// In pipeline order, which is the order of every picker.
inline constexpr std::array AllClientStatuses{ClientStatus::Lead,  ClientStatus::Design,
                                              ClientStatus::Build, ClientStatus::Review,
                                              ClientStatus::Live,  ClientStatus::Care};

/// The status as files and the palette spell it: "lead", "design" and so on.
QString rawText(ClientStatus status);

/// The status as menus name it: "Care plan".
QString title(ClientStatus status);

/// The status spelt exactly so; absent for any other text.
std::optional<ClientStatus> clientStatus(QStringView rawText);

} // namespace quib
