#pragma once

#include "TestedHost.h"

#include <dlfcn.h>
#include <string>

/// The module as its host loads it.
struct HostModule {
    GTypeModule object;

    /// The type of the provider that the module has registered; 0 where it cannot be loaded.
    static GType providerType()
    {
        static const GType type = [] {
            auto* module = static_cast<HostModule*>(g_object_new(moduleType(), nullptr));
            return g_type_module_use(&module->object) ? s_providerType : GType(0);
        }();
        return type;
    }

private:
    inline static GType s_providerType = 0;

    static GType moduleType()
    {
        static const GTypeInfo info{sizeof(GTypeModuleClass), nullptr, nullptr, &beginClass, nullptr, nullptr,
                                    sizeof(HostModule),       0,       nullptr, nullptr};
        const GType type = g_type_register_static(G_TYPE_TYPE_MODULE, "HostModule", &info, GTypeFlags(0));
        TestedHost::completeModule(type);
        return type;
    }

    static void beginClass(gpointer type, gpointer)
    {
        TestedHost::completeClass(*static_cast<GObjectClass*>(type));
        static_cast<GTypeModuleClass*>(type)->load = [](GTypeModule* module) -> gboolean {
            void* library = ::dlopen(ORVIK_BRIDGE_MODULE, RTLD_NOW | RTLD_LOCAL);
            if (!library) {
                g_printerr("%s\n", ::dlerror());
                return FALSE;
            }
            const auto entry = [&](const char* name) {
                return ::dlsym(library, (std::string(TestedHost::entryPrefix) + name).c_str());
            };
            const auto initialize = reinterpret_cast<void (*)(GTypeModule*)>(entry("initialize"));
            const auto listTypes = reinterpret_cast<void (*)(const GType**, int*)>(entry("list_types"));
            if (!initialize || !listTypes || !entry("shutdown"))
                return FALSE;
            initialize(module);
            const GType* types = nullptr;
            int count = 0;
            listTypes(&types, &count);
            if (count != 1)
                return FALSE;
            s_providerType = types[0];
            return TRUE;
        };
        static_cast<GTypeModuleClass*>(type)->unload = [](GTypeModule*) {};
    }
};
