#include "extension/actions/duplicates/KeepRule.h"

#include <algorithm>

namespace MenuExtension::Duplicates {

namespace {

bool hasShorterPath(const Item& one, const Item& other)
{
    if (one.path.size() != other.path.size())
        return one.path.size() < other.path.size();
    return one.path < other.path;
}

/// Whether the first is the one to keep of the two.
bool comesBefore(const KeepRule& rule, const Item& one, const Item& other)
{
    using Kind = KeepRule::Kind;
    const std::int64_t modified = one.state.modified;
    const std::int64_t otherModified = other.state.modified;
    if (rule.kind == Kind::Oldest && modified != otherModified)
        return modified < otherModified;
    if (rule.kind == Kind::Newest && modified != otherModified)
        return modified > otherModified;
    if (rule.kind == Kind::Best && rule.isBetter) {
        if (rule.isBetter(one, other))
            return true;
        if (rule.isBetter(other, one))
            return false;
    }
    return hasShorterPath(one, other);
}

} // namespace

bool liesIn(const std::string& path, const std::string& folder)
{
    const std::size_t length = folder.find_last_not_of('/') + 1;
    return path.size() > length && path[length] == '/' &&
           path.starts_with(std::string_view(folder).substr(0, length));
}

std::vector<bool> KeepRule::kept(const std::vector<Item>& items) const
{
    std::vector<bool> kept(items.size(), false);
    if (kind == Kind::InFolder) {
        std::transform(items.begin(), items.end(), kept.begin(),
                       [this](const Item& item) { return liesIn(item.path, folder); });
        return std::ranges::find(kept, true) == kept.end() ? std::vector<bool>() : kept;
    }
    const auto best = std::ranges::min_element(
        items, [this](const Item& one, const Item& other) { return comesBefore(*this, one, other); });
    if (best == items.end())
        return {};
    kept[static_cast<std::size_t>(best - items.begin())] = true;
    return kept;
}

} // namespace MenuExtension::Duplicates
