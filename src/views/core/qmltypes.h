#pragma once

#include "integrations/calendar/calendarcontroller.h"
#include "integrations/media/mediacontroller.h"
#include "integrations/opening/actions.h"
#include "integrations/opening/fileprobe.h"
#include "integrations/opening/iconsource.h"
#include "model/store.h"
#include "shortcuts/shortcuts.h"

#include <QtQml/qqml.h>

/// Gives QML the types of what lies beneath the views, without those knowing that QML exists.
namespace quib::qml {

struct StoreType {
    Q_GADGET
    QML_FOREIGN(quib::Store)
    QML_NAMED_ELEMENT(Store)
    QML_UNCREATABLE("Created by the application delegate")
};

struct ActionsType {
    Q_GADGET
    QML_FOREIGN(quib::Actions)
    QML_NAMED_ELEMENT(Actions)
    QML_UNCREATABLE("Created by the application delegate")
};

struct ShortcutsType {
    Q_GADGET
    QML_FOREIGN(quib::Shortcuts)
    QML_NAMED_ELEMENT(Shortcuts)
    QML_UNCREATABLE("One for the whole process")
};

struct IconSourceType {
    Q_GADGET
    QML_FOREIGN(quib::IconSource)
    QML_NAMED_ELEMENT(IconSource)
    QML_UNCREATABLE("Made with the platform")
};

struct FileProbeType {
    Q_GADGET
    QML_FOREIGN(quib::FileProbe)
    QML_NAMED_ELEMENT(FileProbe)
    QML_UNCREATABLE("Made with the platform")
};

struct MediaControllerType {
    Q_GADGET
    QML_FOREIGN(quib::MediaController)
    QML_NAMED_ELEMENT(MediaController)
    QML_UNCREATABLE("Created by the application delegate")
};

struct CalendarControllerType {
    Q_GADGET
    QML_FOREIGN(quib::CalendarController)
    QML_NAMED_ELEMENT(CalendarController)
    QML_UNCREATABLE("Created by the application delegate")
};

/// `property shortcutGroup group`: a value that only C++ looks into.
struct ShortcutGroupType {
    Q_GADGET
    QML_FOREIGN(quib::ShortcutGroup)
    QML_VALUE_TYPE(shortcutGroup)
};

/// `property uuid id`: compares by value and is passed to C++ as it is.
struct UuidType {
    Q_GADGET
    QML_FOREIGN(QUuid)
    QML_VALUE_TYPE(uuid)
};

} // namespace quib::qml
