#pragma once

#include <gio/gio.h>

#include <memory>

namespace quib {

struct GFreed {
    void operator()(gpointer memory) const { g_free(memory); }
};

struct GUnreferenced {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// Owner of a text that GLib made.
using GText = std::unique_ptr<gchar, GFreed>;

/// Owner of one reference to an object of GLib's.
template <class T>
using GOwned = std::unique_ptr<T, GUnreferenced>;

} // namespace quib
