#include "CompanionStandIn.h"

#include <gtest/gtest.h>
#include <utility>

using namespace MenuExtension;

namespace {

constexpr const char* description = R"(<node>
  <interface name="org.freedesktop.DBus.Properties">
    <method name="GetAll"><arg type="s" direction="in"/><arg type="a{sv}" direction="out"/></method>
  </interface>
  <interface name="com.orvikstudio.FinderSyncExtension">
    <method name="Run">
      <arg type="s" direction="in"/><arg type="aay" direction="in"/><arg type="a{sv}" direction="in"/>
    </method>
  </interface>
</node>)";

void answer(GDBusMethodInvocation* call, GVariant* properties)
{
    g_dbus_method_invocation_return_value(call, g_variant_new("(@a{sv})", properties));
}

} // namespace

struct CompanionStandIn::Callbacks {
    static void called(GDBusConnection*, const char*, const char*, const char*, const char* method,
                       GVariant* parameters, GDBusMethodInvocation* invocation, gpointer data)
    {
        auto& companion = *static_cast<CompanionStandIn*>(data);
        if (std::string_view(method) == "Run") {
            companion.m_calls.push_back(callOf(parameters));
            g_dbus_method_invocation_return_value(invocation, nullptr);
            return;
        }
        ++companion.m_questions;
        if (companion.m_isSilent)
            companion.m_unanswered.emplace_back(invocation, g_variant_ref(companion.m_properties.get()));
        else
            answer(invocation, companion.m_properties.get());
    }

    static Call callOf(GVariant* parameters)
    {
        const char* action = nullptr;
        GVariant* paths = nullptr;
        GVariant* options = nullptr;
        g_variant_get(parameters, "(&s@aay@a{sv})", &action, &paths, &options);
        const Variant owned[]{Variant(paths), Variant(options)};
        Call asked{.action = action, .paths = {}};
        for (gsize index = 0; index < g_variant_n_children(paths); ++index) {
            const Variant path(g_variant_get_child_value(paths, index));
            asked.paths.emplace_back(g_variant_get_bytestring(path.get()));
        }
        gboolean background = FALSE;
        asked.isBackground =
            g_variant_lookup(options, "background", "b", &background) != FALSE && background != FALSE;
        const char* target = nullptr;
        if (g_variant_lookup(options, "target", "^&ay", &target) != FALSE)
            asked.target = target;
        return asked;
    }
};

CompanionStandIn::CompanionStandIn(const std::string& busAddress)
{
    m_connection.reset(
        g_dbus_connection_new_for_address_sync(busAddress.c_str(),
                                               GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                    G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
                                               nullptr, nullptr, nullptr));
    if (!m_connection) {
        ADD_FAILURE() << "no bus";
        return;
    }
    static constexpr GDBusInterfaceVTable table{&Callbacks::called, nullptr, nullptr, {}};
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(description, nullptr);
    for (GDBusInterfaceInfo** interface = node->interfaces; *interface; ++interface)
        g_dbus_connection_register_object(m_connection.get(), m_address.path.c_str(), *interface, &table, this,
                                          nullptr, nullptr);
    g_dbus_node_info_unref(node);
}

CompanionStandIn::~CompanionStandIn()
{
    goOn();
    if (m_connection)
        g_dbus_connection_close_sync(m_connection.get(), nullptr, nullptr);
}

void CompanionStandIn::askBus(const char* method, const char* arguments)
{
    GVariant* parameters = arguments ? g_variant_new_parsed(arguments, m_address.name.c_str())
                                     : g_variant_new("(s)", m_address.name.c_str());
    const Variant answer(g_dbus_connection_call_sync(
        m_connection.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
        parameters, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
    EXPECT_TRUE(answer) << method;
}

void CompanionStandIn::takeName()
{
    askBus("RequestName", "(%s, uint32 4)");
}

void CompanionStandIn::leaveName()
{
    askBus("ReleaseName", nullptr);
}

void CompanionStandIn::announce()
{
    EXPECT_TRUE(g_dbus_connection_emit_signal(
        m_connection.get(), nullptr, m_address.path.c_str(), "org.freedesktop.DBus.Properties", "PropertiesChanged",
        g_variant_new_parsed("(%s, @a{sv} {}, ['Actions'])", CompanionAddress::menuInterface), nullptr));
}

void CompanionStandIn::goOn()
{
    m_isSilent = false;
    for (const auto& [call, properties] : std::exchange(m_unanswered, {}))
        answer(call, properties.get());
}
