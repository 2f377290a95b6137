#pragma once

#include "platform/Workspace.h"
#include "settings/Deployment.h"
#include "support/CallLog.h"

#include <functional>
#include <string>
#include <vector>

/// A desktop around the program that the test describes.
class FakeWorkspace : public NS::Workspace {
public:
    explicit FakeWorkspace(CallLog& calls) : m_calls(calls) {}

    bool openURL(const NS::URL& url) override
    {
        m_calls.record("workspace", "openURL", url);
        return opens;
    }
    /// The icon's name is "icon of" and the path.
    NS::Image iconForFile(std::string_view path) override
    {
        m_calls.record("workspace", "iconForFile", path);
        return NS::Image("icon of " + std::string(path));
    }
    std::vector<NS::RunningApplication> runningApplications() override
    {
        m_calls.record("workspace", "runningApplications");
        if (whileListing)
            whileListing();
        return running;
    }

    /// Lets the extension run, and nothing else; or nothing at all.
    void setExtensionRuns(bool runs)
    {
        running.clear();
        if (runs)
            running.push_back({NS::ActivationPolicy::Accessory, std::string(Deployment::extensionIdentifier)});
    }

    bool opens = true;
    std::vector<NS::RunningApplication> running;
    /// Called while the list of what runs is made.
    std::function<void()> whileListing;

private:
    CallLog& m_calls;
};
