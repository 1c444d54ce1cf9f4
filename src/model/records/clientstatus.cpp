#include "model/records/clientstatus.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

QString rawText(ClientStatus status)
{
    switch (status) {
    case ClientStatus::Lead: return u"lead"_s;
    case ClientStatus::Design: return u"design"_s;
    case ClientStatus::Build: return u"build"_s;
    case ClientStatus::Review: return u"review"_s;
    case ClientStatus::Live: return u"live"_s;
    case ClientStatus::Care: return u"care"_s;
    }
    Q_UNREACHABLE();
}

QString title(ClientStatus status)
{
    switch (status) {
    case ClientStatus::Lead: return u"Lead"_s;
    case ClientStatus::Design: return u"Design"_s;
    case ClientStatus::Build: return u"Build"_s;
    case ClientStatus::Review: return u"Review"_s;
    case ClientStatus::Live: return u"Live"_s;
    case ClientStatus::Care: return u"Care plan"_s;
    }
    Q_UNREACHABLE();
}

std::optional<ClientStatus> clientStatus(QStringView rawText)
{
    const auto* found = std::ranges::find_if(
        AllClientStatuses, [&](ClientStatus status) { return quib::rawText(status) == rawText; });
    return found == AllClientStatuses.end() ? std::nullopt : std::optional(*found);
}

} // namespace quib
