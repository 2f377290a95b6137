#pragma once

#include "platform/SharingService.h"
#include "platform/linux/bus/SessionBus.h"

#include <chrono>
#include <memory>

namespace LinuxDesktop {

/// The service that attaches files to a new message in the user's mail program; nothing when the desktop has neither
/// an e-mail portal nor xdg-email.
///
/// The service works in the background: a folder is packed into an archive first, all of it or nothing. What keeps
/// items from being sent is told in a window. Before the program's event loop runs, performWithItems() runs one until
/// the items are handed over or will not be. The destructor gives up what is under way. It removes the archives, but
/// none earlier than `archiveStay` after its hand-over, so that a process which ends right away does not take it from
/// under the mail program. The bus must outlive the service. Main thread.
[[nodiscard]] std::unique_ptr<NS::SharingService>
composeEmailService(SessionBus& bus, std::chrono::milliseconds archiveStay = std::chrono::seconds(10));

} // namespace LinuxDesktop
