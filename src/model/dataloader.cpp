#include "model/dataloader.h"

#include <utility>

namespace quib {

namespace {

/// Where no thread is to be had, reading begins when it is waited for.
constexpr auto OnAThread = std::launch::async | std::launch::deferred;

} // namespace

DataLoader::DataLoader(std::function<QuibData()> read)
    : m_reading(std::async(OnAThread, std::move(read)))
{
}

std::optional<QuibData> DataLoader::take()
{
    return m_reading.valid() ? std::optional(m_reading.get()) : std::nullopt;
}

} // namespace quib
