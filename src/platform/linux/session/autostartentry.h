#pragma once

#include "app/shell/loginitem.h"

#include <QString>

namespace quib {

/// A desktop entry of ours in the user's autostart folder.
class AutostartEntry final : public LoginItem {
public:
    /// Starts this program as it is installed.
    AutostartEntry();
    explicit AutostartEntry(QString program);

    bool isEnabled() const override;
    bool enable() override;
    bool disable() override;

private:
    QString m_program;
};

} // namespace quib
