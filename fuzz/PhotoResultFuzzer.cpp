#include "extension/actions/find-duplicate-photos/Collection.h"
#include "extension/actions/find-duplicate-photos/WorkerJobs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>

namespace {

using namespace MenuExtension::SimilarPhotos;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// What a worker that a picture has taken over may answer.
void requireOneMeaning(std::string_view text)
{
    const Result result = resultFrom(text);
    // Words are cut, and what is no answer becomes words.
    require(std::holds_alternative<Refused>(result) || resultText(result) == text);
}

/// Nothing that a thumb says confuses the finding of others.
void requireOrder(Collection& collection, std::uint32_t number, const Thumb& thumb)
{
    for (const auto& pair : collection.add(number, thumb))
        require(pair.one < pair.other && pair.other == number && pair.difference >= 0 &&
                pair.difference <= widestLimit);
}

} // namespace

/// The bytes are an answer; so is each part of them that is as long as one with a thumb.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view text(reinterpret_cast<const char*>(data), size);
    requireOneMeaning(text);

    constexpr std::size_t describedBytes = 1 + 2 * sizeof(std::uint32_t) + thumbBytes;
    constexpr std::uint32_t most = 16;
    Collection collection;
    std::uint32_t count = 0;
    for (; text.size() >= describedBytes && count < most; text.remove_prefix(describedBytes)) {
        const Result result = resultFrom(text.substr(0, describedBytes));
        if (const auto* described = std::get_if<Described>(&result))
            requireOrder(collection, count++, described->thumb);
    }
    for (const float limit : {0.0F, usualLimit, widestLimit}) {
        std::set<std::uint32_t> seen;
        for (const auto& group : collection.resemblances().groups(limit)) {
            require(group.size() >= 2 && std::ranges::is_sorted(group));
            for (const std::uint32_t number : group)
                require(number < count && seen.insert(number).second);
        }
    }
    return 0;
}
