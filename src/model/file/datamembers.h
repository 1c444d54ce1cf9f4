#pragma once

#include "model/json/member.h"
#include "model/records/quibdata.h"

/// What the data file holds.
namespace quib {

template <>
inline constexpr std::tuple Members<Client>{
    Member{"folderPath", &Client::folderPath},
    Member{"hourlyRate", &Client::hourlyRate},
    Member{"id", &Client::id},
    Member{"name", &Client::name},
    Member{"notes", &Client::notes},
    Member{"siteURL", &Client::siteURL},
    Member{"status", &Client::status},
};

template <>
inline constexpr std::tuple Members<TaskItem>{
    Member{"clientID", &TaskItem::clientID}, Member{"created", &TaskItem::created},
    Member{"done", &TaskItem::done},         Member{"id", &TaskItem::id},
    Member{"title", &TaskItem::title},
};

template <>
inline constexpr std::tuple Members<TimeEntry>{
    Member{"clientID", &TimeEntry::clientID},
    Member{"end", &TimeEntry::end},
    Member{"id", &TimeEntry::id},
    Member{"note", &TimeEntry::note},
    Member{"start", &TimeEntry::start},
};

template <>
inline constexpr std::tuple Members<ShelfItem>{
    Member{"id", &ShelfItem::id},
    Member{"path", &ShelfItem::path},
};

template <>
inline constexpr std::tuple Members<LaunchItem>{
    Member{"id", &LaunchItem::id},
    Member{"name", &LaunchItem::name},
    Member{"target", &LaunchItem::target},
};

template <>
inline constexpr std::tuple Members<QuibData>{
    Member{"clients", &QuibData::clients}, Member{"entries", &QuibData::entries},
    Member{"launch", &QuibData::launch},   Member{"notes", &QuibData::notes},
    Member{"shelf", &QuibData::shelf},     Member{"tasks", &QuibData::tasks},
};

} // namespace quib
