#pragma once

#include "extension/bus/Handles.h"

#include <cstdint>
#include <list>
#include <string>

namespace MenuExtension {

/// Tells a person, in the desktop's notifications, what an action could not do.
class FailureNotices {
public:
    /// `bus` must outlive the notices.
    explicit FailureNotices(sd_bus& bus);

    /// Returns at once. What was told last is told in the same place again. Where the desktop shows no notifications,
    /// the words go to standard error.
    void tell(const std::string& title, const std::string& words);

private:
    struct Telling {
        FailureNotices* notices;
        std::string told;
        BusSlot call;
    };

    void takeReply(const Telling& telling, sd_bus_message& reply);

    sd_bus& m_bus;
    std::string m_last;
    /// The desktop's number of the last one; 0 where it has none.
    std::uint32_t m_number = 0;
    /// Those that the desktop has not answered.
    std::list<Telling> m_tellings;
};

} // namespace MenuExtension
