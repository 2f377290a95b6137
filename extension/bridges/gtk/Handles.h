#pragma once

#include <gio/gio.h>
#include <memory>

/// Owners of GLib's objects.
namespace MenuExtension {

template<auto release>
struct ReleaseInGLib {
    template<class Object>
    void operator()(Object* object) const
    {
        release(object);
    }
};

/// Of a GObject of any class.
template<class Class>
using Reference = std::unique_ptr<Class, ReleaseInGLib<g_object_unref>>;
using Variant = std::unique_ptr<GVariant, ReleaseInGLib<g_variant_unref>>;
using Text = std::unique_ptr<char, ReleaseInGLib<g_free>>;

} // namespace MenuExtension
