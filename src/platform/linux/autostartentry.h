#pragma once

#include "app/notch/loginitem.h"

namespace quib {

/// A desktop entry of ours in the user's autostart folder.
class AutostartEntry final : public LoginItem {
public:
    bool isEnabled() const override;
    bool enable() override;
    bool disable() override;
};

} // namespace quib
