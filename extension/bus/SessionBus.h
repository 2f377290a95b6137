#pragma once

#include "extension/bus/Handles.h"
#include "extension/bus/OpenBus.h"

#include <chrono>
#include <string>
#include <string_view>

namespace MenuExtension {

using Message = std::unique_ptr<sd_bus_message, Release<sd_bus_message_unref>>;

/// A method of another program's object. The texts must outlive it.
struct BusMethod {
    const char* destination;
    const char* path;
    const char* interface;
    const char* member;
};

/// A call to be filled; nothing where the method is none.
[[nodiscard]] Message newCall(sd_bus& bus, const BusMethod& method);

/// What came back.
struct BusAnswer {
    Message reply;
    /// The error's name and what it says, where there is no reply.
    std::string error;
    std::string words;

    /// Whether the other program has not answered in time, and may do what was asked yet.
    [[nodiscard]] bool isLate() const;
    /// Whether nobody does such a thing.
    [[nodiscard]] bool isNobody() const;
};
/// Waits for the answer.
[[nodiscard]] BusAnswer call(sd_bus& bus, const Message& call, std::chrono::microseconds patience);

/// Whether a program has that name; false where the bus does not say.
[[nodiscard]] bool isOnBus(sd_bus& bus, const char* name);

/// Posts a notification in the extension's name. Returns when the bus has it.
void post(sd_bus& bus, std::string_view notification);

} // namespace MenuExtension
