#pragma once

#include <QString>
#include <QStringList>

namespace ExtensionsTool {

/// Starts a program that outlives this one and the terminal that may have started this, in no folder that may go,
/// with nothing to read and nowhere to write. False where it cannot be started.
[[nodiscard]] bool startDetached(const QString& program, const QStringList& arguments = {});

} // namespace ExtensionsTool
