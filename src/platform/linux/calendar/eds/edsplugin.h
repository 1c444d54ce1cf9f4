#pragma once

#include "platform/linux/calendar/edscalendars.h"

#include <QObject>

namespace quib {

class EdsPluginObject final : public QObject, public EdsPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.korvel.Quib.EdsPlugin")
    Q_INTERFACES(quib::EdsPlugin)

public:
    std::unique_ptr<EdsCalendars> open(std::function<void()> changed) override;
};

} // namespace quib
