#include "onboarding/ExtensionStatusProbe.h"

#include "platform/Platform.h"
#include "settings/Deployment.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// In seconds.
constexpr double pollInterval = 5.0;

/// Identifiers are ASCII.
char lowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// The companion runs without windows of its own, so programs of other policies are not looked at.
bool isExtension(const NS::RunningApplication& application)
{
    return application.activationPolicy == NS::ActivationPolicy::Accessory && application.bundleIdentifier &&
           std::ranges::equal(*application.bundleIdentifier, Deployment::extensionIdentifier, {}, lowerCase);
}

bool extensionRuns()
{
    return std::ranges::any_of(NS::platform().sharedWorkspace().runningApplications(), isExtension);
}

} // namespace

void ExtensionStatusProbe::schedule(const std::shared_ptr<void>& screen)
{
    NS::platform().dispatchToGlobalQueue([this, held = screen]() mutable {
        isextensionrunning = false;
        const bool runs = extensionRuns();
        isextensionrunning = runs;
        // Handed on, not shared: a screen whose last reference goes must go on the main thread.
        NS::platform().dispatchToMainQueue([this, screen = std::move(held), runs] {
            // Another probe may have begun meanwhile.
            isextensionrunning = runs;
            m_update();
        });
    });
}

void ExtensionStatusProbe::startPolling(const std::shared_ptr<void>& screen)
{
    timer = NS::platform().scheduledTimerWithTimeInterval(pollInterval, [this, screen] { schedule(screen); });
}

void ExtensionStatusProbe::stopPolling()
{
    if (timer)
        timer->invalidate();
}
