#pragma once

#include "model/quibdata.h"

#include <functional>
#include <future>
#include <optional>

namespace quib {

/// Reads the workspace on a thread of its own, beside what its owner does meanwhile.
class DataLoader {
public:
    /// Begins at once.
    explicit DataLoader(std::function<QuibData()> read);

    /// What was read, waiting for the end of it; absent when it has been taken.
    std::optional<QuibData> take();

private:
    std::future<QuibData> m_reading; ///< Waits for the thread when it goes.
};

} // namespace quib
