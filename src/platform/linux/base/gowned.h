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

struct GFreedAsTexts {
    void operator()(gchar** texts) const { g_strfreev(texts); }
};

struct GKeyFileUnreferenced {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};

/// Owner of a text that GLib made.
using GText = std::unique_ptr<gchar, GFreed>;

/// Owner of a list of texts that ends with a null.
using GTexts = std::unique_ptr<gchar*, GFreedAsTexts>;

/// Owner of one reference to a key file, which is no object.
using GKeyFileOwned = std::unique_ptr<GKeyFile, GKeyFileUnreferenced>;

/// Owner of one reference to an object of GLib's.
template <class T>
using GOwned = std::unique_ptr<T, GUnreferenced>;

} // namespace quib
