#pragma once

#include "platform/FinderSyncController.h"
#include "support/CallLog.h"

#include <optional>
#include <set>

/// Keeps the folders that were published last.
class FakeFinderSyncController : public FI::FinderSyncController {
public:
    explicit FakeFinderSyncController(CallLog& calls) : m_calls(calls) {}

    void setDirectoryURLs(const std::set<NS::URL>& urls) override
    {
        m_calls.record("finderSync", "setDirectoryURLs", std::vector(urls.begin(), urls.end()));
        published = urls;
    }

    std::optional<std::set<NS::URL>> published;

private:
    CallLog& m_calls;
};
