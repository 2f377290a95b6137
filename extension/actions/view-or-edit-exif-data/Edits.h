#pragma once

#include "Fields.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace MenuExtension::Exif {

/// What is to be changed about photos.
struct Edits {
    /// Title, description, author, copyright and date; an empty text removes.
    std::map<Field, std::string> texts;
    /// By how much the dates that there are move.
    std::chrono::seconds shift{0};
    /// From 1 to 8.
    std::optional<int> orientation;
    struct NewPlace {
        /// Nothing removes.
        std::optional<Place> place;
    };
    std::optional<NewPlace> place;
    bool removesPersonalData = false;

    [[nodiscard]] bool empty() const
    {
        return texts.empty() && shift.count() == 0 && !orientation && !place && !removesPersonalData;
    }
};

/// The keys of the tags that the two functions below look at; none where they look at all.
[[nodiscard]] std::vector<std::string> keysFor(const Edits& edits);

/// What ExifTool is given to make the edits in a file with these tags; nothing where it has nothing to change.
[[nodiscard]] std::vector<std::string> argumentsFor(const Edits& edits, const Tags& tags);

/// Whether a file that had the tags `before` and has `after` by now says what the edits ask for.
[[nodiscard]] bool areMade(const Edits& edits, const Tags& before, const Tags& after);

} // namespace MenuExtension::Exif
