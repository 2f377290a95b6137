#pragma once

#include "platform/linux/portal/PortalRequest.h"
#include "platform/linux/system/FileDescriptor.h"

#include <QDBusConnection>

#include <memory>
#include <vector>

/// The desktop's e-mail portal. Main thread.
namespace LinuxDesktop::EmailPortal {

/// Whether there is one; a portal that does not answer is there. Blocks while the bus starts it, 5 seconds at most.
[[nodiscard]] bool exists(const QDBusConnection& connection);

/// Asks for a new message with these open files attached.
[[nodiscard]] std::unique_ptr<PortalRequest> compose(const QDBusConnection& connection,
                                                     const std::vector<FileDescriptor>& files);

} // namespace LinuxDesktop::EmailPortal
