#include "extension/actions/view-or-edit-exif-data/Edits.h"
#include "extension/actions/view-or-edit-exif-data/Merged.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace MenuExtension::Exif;

constexpr Field texts[] = {Field::Title, Field::Description, Field::Author, Field::Copyright, Field::Date};

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Whatever a file says and a person wants, ExifTool is told one argument a line.
void requireLines(const Edits& edits, const Tags& tags)
{
    for (const auto& argument : argumentsFor(edits, tags))
        require(!argument.empty() && argument.find('\n') == std::string::npos && argument.front() != ' ' &&
                argument.front() != '#');
}

} // namespace

/// The bytes are what ExifTool has printed of files that anyone may have made.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Merged merged;
    const bool isRead =
        readTags(std::string_view(reinterpret_cast<const char*>(data), size), [&](const std::string&, Tags tags) {
            Edits edits;
            for (const Field field : texts)
                edits.texts[field] = textOf(field, tags);
            edits.orientation = orientationOf(tags);
            edits.place = Edits::NewPlace{placeOf(tags)};
            requireLines(edits, tags);
            Edits others;
            others.shift = std::chrono::hours(1);
            others.removesPersonalData = true;
            requireLines(others, tags);
            // One of the two answers; no file makes it none.
            static_cast<void>(areMade(edits, tags, tags));
            merged.add(tags);
        });
    static_cast<void>(isRead);
    for (const Field field : texts)
        require(merged.photos() > 0 || merged.field(field).text.empty());
    return 0;
}
