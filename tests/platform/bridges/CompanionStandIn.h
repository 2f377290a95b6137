#pragma once

#include "Properties.h"

#include "extension/bridges/gtk/CompanionAddress.h"
#include "extension/bridges/gtk/Handles.h"

#include <string>
#include <vector>

/// A companion with a connection of its own that says what it is told to. It answers in the event loop of the test.
class CompanionStandIn {
public:
    explicit CompanionStandIn(const std::string& busAddress);
    ~CompanionStandIn();
    CompanionStandIn(const CompanionStandIn&) = delete;
    CompanionStandIn& operator=(const CompanionStandIn&) = delete;

    void takeName();
    void leaveName();
    /// What it answers from now on.
    void publish(const Properties& properties) { m_properties = properties.all(); }
    /// Says that something has changed.
    void announce();

    /// It answers nothing until it is told to go on.
    void fallSilent() { m_isSilent = true; }
    /// Answers what was asked meanwhile, with what it published then.
    void goOn();

    /// How often it was asked for its properties.
    [[nodiscard]] int questions() const { return m_questions; }

    /// What it was asked to do.
    struct Call {
        std::string action;
        std::vector<std::string> paths;
        bool isBackground = false;
        /// The folder to move or copy to; empty where none was named.
        std::string target = {};
        friend bool operator==(const Call&, const Call&) = default;
    };
    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }

private:
    struct Callbacks;
    void askBus(const char* method, const char* arguments);

    const MenuExtension::CompanionAddress m_address;
    MenuExtension::Reference<GDBusConnection> m_connection;
    MenuExtension::Variant m_properties = Properties().all();
    bool m_isSilent = false;
    int m_questions = 0;
    std::vector<std::pair<GDBusMethodInvocation*, MenuExtension::Variant>> m_unanswered;
    std::vector<Call> m_calls;
};
