#include "platform/linux/base/gowned.h"

#include <libecal/libecal.h>

#include <cstring>
#include <string_view>

using namespace quib;

namespace {

bool add(ECalClient* client, const char* text)
{
    const GOwned<ICalComponent> event(i_cal_component_new_from_string(text));
    gchar* uid = nullptr;
    const auto isAdded = e_cal_client_create_object_sync(
        client, event.get(), E_CAL_OPERATION_FLAG_NONE, &uid, nullptr, nullptr);
    g_free(uid);
    return isAdded != FALSE;
}

bool modify(ECalClient* client, const char* text)
{
    const GOwned<ICalComponent> event(i_cal_component_new_from_string(text));
    return e_cal_client_modify_object_sync(client, event.get(), E_CAL_OBJ_MOD_ALL,
                                           E_CAL_OPERATION_FLAG_NONE, nullptr, nullptr)
        != FALSE;
}

bool remove(ECalClient* client, const char* uid)
{
    return e_cal_client_remove_object_sync(client, uid, nullptr, E_CAL_OBJ_MOD_ALL,
                                           E_CAL_OPERATION_FLAG_NONE, nullptr, nullptr)
        != FALSE;
}

bool paint(ESource* source, const char* color)
{
    auto* extension = e_source_get_extension(source, E_SOURCE_EXTENSION_CALENDAR);
    e_source_selectable_set_color(E_SOURCE_SELECTABLE(extension), color);
    return e_source_write_sync(source, nullptr, nullptr) != FALSE;
}

bool run(ESource* source, std::string_view command, const char* argument)
{
    if (command == "paint") {
        return paint(source, argument);
    }
    const GOwned<EClient> client(e_cal_client_connect_sync(source, E_CAL_CLIENT_SOURCE_TYPE_EVENTS,
                                                           guint32(-1), nullptr, nullptr));
    if (!client) {
        return false;
    }
    auto* calendar = E_CAL_CLIENT(client.get());
    return (command == "add" && add(calendar, argument))
        || (command == "modify" && modify(calendar, argument))
        || (command == "remove" && remove(calendar, argument));
}

} // namespace

/// Changes a calendar as another program does: add EVENT, modify EVENT, remove UID or paint COLOUR.
/// The calendar stands before them.
int main(int argc, char* argv[])
{
    if (argc != 4) {
        return 1;
    }
    const GOwned<ESourceRegistry> registry(e_source_registry_new_sync(nullptr, nullptr));
    const GOwned<ESource> source(registry ? e_source_registry_ref_source(registry.get(), argv[1])
                                          : nullptr);
    return source && run(source.get(), argv[2], argv[3]) ? 0 : 1;
}
