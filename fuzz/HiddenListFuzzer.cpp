#include "extension/actions/hide-unhide-item/HiddenList.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::string_view takeUntil(std::string_view& rest, char end)
{
    const std::string_view taken = rest.substr(0, rest.find(end));
    rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
    return taken;
}

} // namespace

/// The bytes are names, each ended by a zero, then, after an empty one, a list. What is added is there and all that
/// was there before still is, in front; what is removed is gone and nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace MenuExtension;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> names;
    while (!rest.empty()) {
        const std::string_view name = takeUntil(rest, '\0');
        if (name.empty())
            break;
        if (HiddenList::canHold(name))
            names.emplace_back(name);
    }
    const std::string text(rest);
    const auto before = HiddenList::namesIn(text);

    const std::string more = HiddenList::with(text, names);
    require(more.starts_with(text));
    const auto added = HiddenList::namesIn(more);
    require(std::ranges::all_of(names, [&](const std::string& name) { return added.contains(name); }));
    require(std::ranges::includes(added, before));
    require(added.size() <= before.size() + names.size());
    require(HiddenList::with(more, names) == more);

    const std::string less = HiddenList::without(text, names);
    const auto left = HiddenList::namesIn(less);
    require(std::ranges::none_of(names, [&](const std::string& name) { return left.contains(name); }));
    require(std::ranges::includes(before, left));
    require(HiddenList::without(less, names) == less);

    // What was added goes again, but for the end that the last line may have lacked.
    std::vector<std::string> fresh;
    std::ranges::copy_if(names, std::back_inserter(fresh),
                         [&](const std::string& name) { return !before.contains(name); });
    const bool ended = text.empty() || text.ends_with('\n') || fresh.empty();
    require(HiddenList::without(more, fresh) == (ended ? text : text + '\n'));
    return 0;
}
