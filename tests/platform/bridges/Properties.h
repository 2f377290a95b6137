#pragma once

#include "extension/bridges/gtk/Handles.h"
#include "extension/menu/Scope.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Properties as a companion publishes them, under any name and of any type.
class Properties {
public:
    /// Takes a floating value as well.
    Properties& with(const std::string& name, GVariant* value)
    {
        m_values.emplace_back(name, std::shared_ptr<GVariant>(g_variant_ref_sink(value), &g_variant_unref));
        return *this;
    }
    /// The same from text, as GLib writes values.
    Properties& with(const std::string& name, const std::string& value)
    {
        return with(name, g_variant_new_parsed(value.c_str()));
    }

    /// All of them (a{sv}).
    [[nodiscard]] MenuExtension::Variant all() const
    {
        GVariantBuilder builder;
        g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
        for (const auto& [name, value] : m_values)
            g_variant_builder_add(&builder, "{sv}", name.c_str(), value.get());
        return MenuExtension::Variant(g_variant_ref_sink(g_variant_builder_end(&builder)));
    }

    /// Actions of these identifiers, each titled by it, that apply to anything.
    static GVariant* actions(const std::vector<std::string>& identifiers)
    {
        GVariantBuilder builder;
        g_variant_builder_init(&builder, G_VARIANT_TYPE("a(sssu)"));
        for (const std::string& identifier : identifiers)
            g_variant_builder_add(&builder, "(sssu)", identifier.c_str(), identifier.c_str(), "icon", 127U);
        return g_variant_builder_end(&builder);
    }

    static GVariant* bytes(const std::string& bytes)
    {
        return g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, bytes.data(), bytes.size(), 1);
    }
    static GVariant* scope(const std::vector<MenuExtension::Folder>& folders)
    {
        return bytes(MenuExtension::bytesOf(folders));
    }

    static GVariant* texts(const std::vector<std::string>& texts)
    {
        GVariantBuilder builder;
        g_variant_builder_init(&builder, G_VARIANT_TYPE_STRING_ARRAY);
        for (const std::string& text : texts)
            g_variant_builder_add(&builder, "s", text.c_str());
        return g_variant_builder_end(&builder);
    }

private:
    std::vector<std::pair<std::string, std::shared_ptr<GVariant>>> m_values;
};
