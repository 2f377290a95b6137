#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <vector>

/// The desktop's e-mail portal. Any thread.
namespace LinuxDesktop::EmailPortal {

/// Whether the portal is there. Blocks while the bus starts it, 5 seconds at most.
[[nodiscard]] bool answers(const QDBusConnection& connection);

/// Asks for a new message with these open files attached. Blocks until the portal has taken or refused it; the
/// answer is a reply or an error.
[[nodiscard]] QDBusMessage compose(const QDBusConnection& connection, const std::vector<FileDescriptor>& files);

} // namespace LinuxDesktop::EmailPortal
