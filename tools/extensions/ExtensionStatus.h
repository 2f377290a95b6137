#pragma once

#include <QString>

namespace ExtensionsTool {

/// How things stand with an extension.
struct ExtensionStatus {
    enum class Activity { None, Starting, Stopping };

    bool hasBus = true;
    bool startsAtLogIn = false;
    bool runs = false;
    Activity activity = Activity::None;
    /// What went wrong when it was last switched, in sentences; empty when nothing did.
    QString trouble{};

    friend bool operator==(const ExtensionStatus&, const ExtensionStatus&) = default;
};

/// On is only what runs now and at the next log-in.
[[nodiscard]] bool isOn(const ExtensionStatus& status);
/// Whether something is not as people would expect it.
[[nodiscard]] bool needsAttention(const ExtensionStatus& status);
/// The status in sentences.
[[nodiscard]] QString inWords(const ExtensionStatus& status);

} // namespace ExtensionsTool
