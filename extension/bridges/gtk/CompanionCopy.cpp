#include "extension/bridges/gtk/CompanionCopy.h"

#include "extension/bridges/gtk/PublishedSettings.h"
#include "extension/bridges/gtk/Quietly.h"

#include <algorithm>
#include <utility>

namespace MenuExtension {

namespace {

constexpr const char* propertiesInterface = "org.freedesktop.DBus.Properties";

/// However often the companion's settings change, at most a tenth of the host's time goes into following them.
constexpr gint64 restsPerWork = 9;
constexpr gint64 shortestRest = 5 * G_TIME_SPAN_MILLISECOND;
constexpr gint64 longestRest = G_TIME_SPAN_SECOND;

constexpr int forever = G_MAXINT;

} // namespace

struct CompanionCopy::Callbacks {
    static CompanionCopy& copy(gpointer data) { return *static_cast<CompanionCopy*>(data); }

    static void appeared(GDBusConnection* connection, const char*, const char* owner, gpointer data) noexcept
    {
        quietly([&] { copy(data).appear(*connection, owner); });
    }

    static void vanished(GDBusConnection* connection, const char*, gpointer data) noexcept
    {
        quietly([&] {
            if (connection)
                outlive(*connection);
            copy(data).vanish();
        });
    }

    static void changed(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*,
                        gpointer data) noexcept
    {
        quietly([&] {
            copy(data).m_isStale = true;
            copy(data).readSoon();
        });
    }

    static gboolean rested(gpointer data) noexcept
    {
        quietly([&] {
            copy(data).m_pause = 0;
            copy(data).readSoon();
        });
        return G_SOURCE_REMOVE;
    }

    static void answered(GObject* connection, GAsyncResult* result, gpointer data) noexcept
    {
        quietly([&] {
            GError* failed = nullptr;
            const Variant answer(
                g_dbus_connection_call_finish(reinterpret_cast<GDBusConnection*>(connection), result, &failed));
            const bool isOutdated = g_error_matches(failed, G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE;
            g_clear_error(&failed);
            // The copy itself may be gone then.
            if (!isOutdated)
                copy(data).take(answer.get());
        });
    }

    /// The host goes on when the bus is gone.
    static void outlive(GDBusConnection& connection) { g_dbus_connection_set_exit_on_close(&connection, FALSE); }
};

CompanionCopy::CompanionCopy(std::function<void()> changed)
    : m_changed(std::move(changed)),
      m_watch(g_bus_watch_name(G_BUS_TYPE_SESSION, m_address.name.c_str(), G_BUS_NAME_WATCHER_FLAGS_NONE,
                               &Callbacks::appeared, &Callbacks::vanished, this, nullptr))
{}

CompanionCopy::~CompanionCopy()
{
    g_bus_unwatch_name(m_watch);
    m_changed = nullptr;
    vanish();
}

void CompanionCopy::appear(GDBusConnection& connection, const char* owner)
{
    Callbacks::outlive(connection);
    vanish();
    m_connection.reset(static_cast<GDBusConnection*>(g_object_ref(&connection)));
    m_owner = owner;
    m_subscription = g_dbus_connection_signal_subscribe(&connection, owner, propertiesInterface, "PropertiesChanged",
                                                        m_address.path.c_str(), CompanionAddress::menuInterface,
                                                        G_DBUS_SIGNAL_FLAGS_NONE, &Callbacks::changed, this, nullptr);
    m_isStale = true;
    m_rested = 0;
    readSoon();
}

void CompanionCopy::vanish()
{
    if (m_subscription != 0)
        g_dbus_connection_signal_unsubscribe(m_connection.get(), std::exchange(m_subscription, 0));
    if (m_question)
        g_cancellable_cancel(std::exchange(m_question, nullptr).get());
    if (m_pause != 0)
        g_source_remove(std::exchange(m_pause, 0));
    m_isStale = false;
    if (std::exchange(m_connection, nullptr))
        replace({});
}

void CompanionCopy::readSoon()
{
    if (!m_isStale || m_question || m_pause != 0)
        return;
    const gint64 rest = m_rested - g_get_monotonic_time();
    if (rest <= 0)
        read();
    else
        m_pause = g_timeout_add(static_cast<guint>(rest / G_TIME_SPAN_MILLISECOND + 1), &Callbacks::rested, this);
}

/// Asks for everything, whatever has changed: of answers that come one after another each is whole.
void CompanionCopy::read()
{
    m_isStale = false;
    m_question.reset(g_cancellable_new());
    // By its unique name, so that nobody else answers.
    g_dbus_connection_call(m_connection.get(), m_owner.c_str(), m_address.path.c_str(), propertiesInterface, "GetAll",
                           g_variant_new("(s)", CompanionAddress::menuInterface), G_VARIANT_TYPE("(a{sv})"),
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, forever, m_question.get(), &Callbacks::answered, this);
}

void CompanionCopy::take(GVariant* answer)
{
    const gint64 begun = g_get_monotonic_time();
    m_question.reset();
    if (answer) {
        const Variant properties(g_variant_get_child_value(answer, 0));
        replace(settingsFromProperties(*properties));
    }
    const gint64 now = g_get_monotonic_time();
    m_rested = now + std::clamp(restsPerWork * (now - begun), shortestRest, longestRest);
    readSoon();
}

void CompanionCopy::replace(MenuSettings settings)
{
    m_settings = std::move(settings);
    if (m_changed)
        m_changed();
}

} // namespace MenuExtension
