#pragma once

#include "platform/linux/mailing/Attaching.h"

#include <string>
#include <vector>

/// Windows that say that items were not sent, and why. They stay until they are dismissed or the program ends, and
/// hold nothing up. Main thread.
namespace LinuxDesktop::NotSentAlert {

/// `items` are the paths of what was to be sent.
void show(const std::vector<std::string>& items, const AttachingFailure& failure);
/// For items that no mail program has taken.
void showNoMailProgram(const std::vector<std::string>& items);

} // namespace LinuxDesktop::NotSentAlert
