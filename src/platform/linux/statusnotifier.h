#pragma once

#include "app/notch/statusitem.h"

namespace quib {

/// An item as the StatusNotifierItem protocol has it, with its menu on the bus.
class StatusNotifier final : public StatusItem {
    Q_OBJECT

public:
    void install(const StatusIcon& icon) override;
    void setMenu(const QList<MenuItem>& menu) override;
    bool isShown() const override { return false; }
};

} // namespace quib
