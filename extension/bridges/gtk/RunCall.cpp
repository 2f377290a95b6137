#include "extension/bridges/gtk/RunCall.h"

#include "extension/bridges/gtk/CompanionAddress.h"

namespace MenuExtension {

namespace {

using BusInterface::FinderSyncExtension::Run;

GVariant* pathsOf(const Clicked& clicked)
{
    GVariantBuilder paths;
    g_variant_builder_init(&paths, G_VARIANT_TYPE_BYTESTRING_ARRAY);
    for (const std::string& path : clicked.paths)
        g_variant_builder_add_value(&paths, g_variant_new_bytestring(path.c_str()));
    return g_variant_builder_end(&paths);
}

GVariant* optionsOf(const Clicked& clicked, const std::string& target, const std::string& token)
{
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    if (clicked.isBackground)
        g_variant_builder_add(&options, "{sv}", "background", g_variant_new_boolean(TRUE));
    if (!target.empty())
        g_variant_builder_add(&options, "{sv}", "target", g_variant_new_bytestring(target.c_str()));
    if (!token.empty() && g_utf8_validate(token.c_str(), -1, nullptr))
        g_variant_builder_add(&options, "{sv}", "activation-token", g_variant_new_string(token.c_str()));
    return g_variant_builder_end(&options);
}

} // namespace

void callRun(GDBusConnection& connection, const std::string& action, const Clicked& clicked,
             const std::string& target, const std::string& token)
{
    const CompanionAddress companion;
    g_dbus_connection_call(
        &connection, companion.name.c_str(), companion.path.c_str(), CompanionAddress::interface, Run::name,
        g_variant_new("(s@aay@a{sv})", action.c_str(), pathsOf(clicked), optionsOf(clicked, target, token)), nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, nullptr, nullptr);
}

} // namespace MenuExtension
