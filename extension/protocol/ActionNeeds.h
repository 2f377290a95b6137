#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// What an action needs of the system beside its own program, and the package that brings it. An action says it in a
/// file beside its program, IDENTIFIER.needs, a line each: "program exiftool libimage-exiftool-perl" for one in PATH,
/// "library /usr/lib/libvips.so.42 libvips42" for a file.
struct ActionNeed {
    enum class Kind { Program, Library };

    Kind kind;
    std::string name;
    std::string package;

    friend bool operator==(const ActionNeed&, const ActionNeed&) = default;
};

/// What the text of such a file says; lines that say nothing are left out.
[[nodiscard]] std::vector<ActionNeed> needsFrom(std::string_view text);
/// Whether it is there now.
[[nodiscard]] bool isMet(const ActionNeed& need);
/// What an action needs whose program is in `programs`.
[[nodiscard]] std::vector<ActionNeed> needsOf(const std::string& programs, std::string_view identifier);
/// What of that is missing.
[[nodiscard]] std::vector<ActionNeed> missingNeeds(const std::string& programs, std::string_view identifier);

} // namespace MenuExtension
