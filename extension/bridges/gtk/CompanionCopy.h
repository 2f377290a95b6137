#pragma once

#include "extension/bridges/gtk/CompanionAddress.h"
#include "extension/bridges/gtk/Handles.h"
#include "extension/menu/Menu.h"

#include <functional>
#include <string>

namespace MenuExtension {

/// What the companion on the session bus says, kept up to date by calls that nobody waits for. Everything happens in
/// the main loop of the thread that made it. While no companion runs it holds nothing.
class CompanionCopy {
public:
    /// `changed` is called when the copy has become another one.
    explicit CompanionCopy(std::function<void()> changed);
    ~CompanionCopy();
    CompanionCopy(const CompanionCopy&) = delete;
    CompanionCopy& operator=(const CompanionCopy&) = delete;

    [[nodiscard]] const MenuSettings& settings() const { return m_settings; }
    /// The way to the companion; nothing while there is none.
    [[nodiscard]] GDBusConnection* connection() const { return m_connection.get(); }

private:
    /// What GLib calls.
    struct Callbacks;

    void appear(GDBusConnection& connection, const char* owner);
    void vanish();
    void readSoon();
    void read();
    void take(GVariant* answer);
    void replace(MenuSettings settings);

    const CompanionAddress m_address;
    std::function<void()> m_changed;
    MenuSettings m_settings;
    guint m_watch = 0;

    // Of the companion that is there now.
    Reference<GDBusConnection> m_connection;
    std::string m_owner;
    guint m_subscription = 0;
    /// Of the question that is on its way. What comes after its cancellation counts for nothing.
    Reference<GCancellable> m_question;
    /// Something has changed since that question was asked.
    bool m_isStale = false;
    guint m_pause = 0;
    /// When the next question may be asked, in microseconds of the monotonic clock.
    gint64 m_rested = 0;
};

} // namespace MenuExtension
