#include "views/accessibility/accessiblefactory.h"
#include "views/core/noclient.h"

#include <QtCore/QCoreApplication>

#include <array>

// Here, since every program that shows views links this file.
namespace quib {
Q_COREAPP_STARTUP_FUNCTION(installAccessibleFactory)
Q_COREAPP_STARTUP_FUNCTION(teachNoClient)
} // namespace quib

// NOLINTBEGIN(readability-identifier-naming): Qt's
void qml_register_types_QtQml_WorkerScript();
void qml_register_types_Quib_Brand();
void qml_register_types_Quib_Controls();
void qml_register_types_Quib_Core();
void qml_register_types_Quib_Files();
void qml_register_types_Quib_Models();
void qml_register_types_Quib_Motion();
void qml_register_types_Quib_Notch();
void qml_register_types_Quib_Shapes();
void qml_register_types_Quib_Shell();
void qml_register_types_Quib_Symbols();
void qml_register_types_Quib_Tabs();
void qml_register_types_Quib_Tabs_Clients();
void qml_register_types_Quib_Tabs_Home();
void qml_register_types_Quib_Tabs_Links();
void qml_register_types_Quib_Tabs_Notes();
void qml_register_types_Quib_Tabs_Shelf();
void qml_register_types_Quib_Tabs_Tasks();
void qml_register_types_Quib_Tabs_Time();
void qml_register_types_Quib_Texts();
void qml_register_types_Quib_Views();
// NOLINTEND(readability-identifier-naming)

namespace {

// The modules are linked statically. Of a static library the linker takes only what somebody names:
// so the functions that register the modules' types are named here. They are no plugins, since as a
// program starts Qt reads several times what each plugin tells of itself. The first is Qt's, which
// QtQuick imports; for a plugin in its place the thread that reads the views would have to wait
// until the main one has made it ready.
[[gnu::used]] const std::array Registrations{
    &qml_register_types_QtQml_WorkerScript, &qml_register_types_Quib_Brand,
    &qml_register_types_Quib_Controls,      &qml_register_types_Quib_Core,
    &qml_register_types_Quib_Files,         &qml_register_types_Quib_Models,
    &qml_register_types_Quib_Motion,        &qml_register_types_Quib_Notch,
    &qml_register_types_Quib_Shapes,        &qml_register_types_Quib_Shell,
    &qml_register_types_Quib_Symbols,       &qml_register_types_Quib_Tabs,
    &qml_register_types_Quib_Tabs_Clients,  &qml_register_types_Quib_Tabs_Home,
    &qml_register_types_Quib_Tabs_Links,    &qml_register_types_Quib_Tabs_Notes,
    &qml_register_types_Quib_Tabs_Shelf,    &qml_register_types_Quib_Tabs_Tasks,
    &qml_register_types_Quib_Tabs_Time,     &qml_register_types_Quib_Texts,
    &qml_register_types_Quib_Views,
};

} // namespace
