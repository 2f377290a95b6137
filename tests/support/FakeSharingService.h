#pragma once

#include "platform/SharingService.h"
#include "support/CallLog.h"

/// A mail service that only records what it is given.
class FakeSharingService : public NS::SharingService {
public:
    explicit FakeSharingService(CallLog& calls) : m_calls(calls) {}

    void performWithItems(const std::vector<NS::URL>& items) override
    {
        m_calls.record("mail", "performWithItems", items);
    }

private:
    CallLog& m_calls;
};
