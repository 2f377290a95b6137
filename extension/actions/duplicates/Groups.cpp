#include "extension/actions/duplicates/Groups.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <utility>

namespace MenuExtension::Duplicates {

namespace {

char lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isFoundIn(std::string_view whole, std::string_view lowerText)
{
    const auto isSame = [](char one, char lowerOne) { return lower(one) == lowerOne; };
    return lowerText.empty() ||
           std::search(whole.begin(), whole.end(), lowerText.begin(), lowerText.end(), isSame) != whole.end();
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

} // namespace

Groups::Groups(std::function<bool(const Item& one, const Item& other)> isBetter)
    : m_rule{.kind = KeepRule::Kind::Best, .folder = {}, .isBetter = std::move(isBetter)}
{}

GroupNumber Groups::add(std::uint64_t key, const std::vector<Item>& items)
{
    auto number = static_cast<GroupNumber>(m_groups.size());
    if (key != 0)
        number = m_keys.try_emplace(key, number).first->second;
    if (number == m_groups.size())
        m_groups.add({.bytes = 0, .first = none, .last = none, .best = none, .count = 0, .chosen = 0});
    for (const Item& item : items)
        append(number, item);
    if (!m_toChooseAgain.empty())
        chooseAgain(number);
    return number;
}

/// One for which the group had too few items may be among those that were there.
void Groups::chooseAgain(GroupNumber group)
{
    for (const ItemNumber number : itemsOf(group)) {
        const Item added = item(number);
        const auto found = m_toChooseAgain.find(added.path);
        if (found != m_toChooseAgain.end() && found->second == added.state && setChosen(number, true))
            m_toChooseAgain.erase(found);
    }
}

void Groups::append(GroupNumber number, const Item& item)
{
    const std::size_t slash = item.path.rfind('/') + 1;
    const auto added = static_cast<ItemNumber>(m_items.size());
    const std::uint64_t folder = folderText(std::string_view(item.path).substr(0, slash));
    // With the NUL.
    const std::uint64_t name = m_texts.add(std::span(item.path.c_str() + slash, item.path.size() - slash + 1));
    m_items.add({.name = name,
                 .folder = folder,
                 .inode = item.state.inode,
                 .size = item.state.size,
                 .modified = item.state.modified,
                 .detail = item.detail,
                 .group = number,
                 .next = none,
                 .device = deviceIndex(item.state.device) & 0x7fffffffU,
                 .chosen = 0});
    StoredGroup& group = m_groups[number];
    (group.count == 0 ? group.first : m_items[group.last].next) = added;
    group.last = added;
    count(group, added);
}

void Groups::count(StoredGroup& group, ItemNumber added)
{
    group.bytes += m_items[added].size;
    if (group.count == 0 || isBetter(added, group.best))
        group.best = added;
    ++group.count;
}

bool Groups::isBetter(ItemNumber one, ItemNumber other) const
{
    return m_rule.isBetter ? m_rule.kept({item(one), item(other)}).front() : m_items[one].size > m_items[other].size;
}

/// Most folders are met many times in a row. Those that were forgotten are kept twice.
std::uint64_t Groups::folderText(std::string_view folder)
{
    constexpr std::size_t mostRemembered = 20'000;
    if (m_folders.size() >= mostRemembered)
        m_folders.clear();
    const auto [entry, isNew] = m_folders.try_emplace(std::string(folder), 0);
    if (isNew)
        entry->second = m_texts.add(std::span(entry->first.c_str(), entry->first.size() + 1));
    return entry->second;
}

std::uint32_t Groups::deviceIndex(dev_t device)
{
    auto found = std::ranges::find(m_devices, device);
    if (found == m_devices.end())
        found = m_devices.insert(found, device);
    return static_cast<std::uint32_t>(found - m_devices.begin());
}

void Groups::clear()
{
    for (ItemNumber number = 0; number < m_items.size(); ++number) {
        if (!isChosen(number))
            continue;
        Item chosen = item(number);
        m_toChooseAgain.insert_or_assign(std::move(chosen.path), chosen.state);
    }
    m_texts.clear();
    m_items.clear();
    m_groups.clear();
    m_devices.clear();
    m_keys.clear();
    m_folders.clear();
    m_chosen = {};
}

void Groups::forget(const std::vector<ItemNumber>& items)
{
    std::vector<bool> isGone(m_items.size(), false);
    std::vector<GroupNumber> groups;
    for (const ItemNumber number : items) {
        setChosen(number, false);
        isGone[number] = true;
        groups.push_back(m_items[number].group);
    }
    std::ranges::sort(groups);
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    for (const GroupNumber number : groups) {
        StoredGroup& group = m_groups[number];
        std::vector<ItemNumber> left = itemsOf(number);
        std::erase_if(left, [&](ItemNumber item) { return isGone[item]; });
        relink(group, left);
        if (group.count > 0 && group.chosen == group.count)
            setChosen(group.first, false);
    }
}

void Groups::relink(StoredGroup& group, const std::vector<ItemNumber>& items)
{
    group.first = items.empty() ? none : items.front();
    group.last = items.empty() ? none : items.back();
    group.best = none;
    group.count = 0;
    group.bytes = 0;
    for (std::size_t index = 0; index < items.size(); ++index) {
        m_items[items[index]].next = index + 1 < items.size() ? items[index + 1] : none;
        count(group, items[index]);
    }
}

std::vector<GroupNumber> Groups::bySaving() const
{
    return bySaving({});
}

std::vector<GroupNumber> Groups::bySaving(std::string_view text) const
{
    const std::string lowerText = lowered(text);
    std::vector<GroupNumber> groups;
    for (GroupNumber number = 0; number < m_groups.size(); ++number) {
        if (m_groups[number].count > 1 && (lowerText.empty() || contains(number, lowerText)))
            groups.push_back(number);
    }
    sortBySaving(groups);
    return groups;
}

bool Groups::contains(GroupNumber group, std::string_view text) const
{
    std::string path;
    for (ItemNumber at = m_groups[group].first; at != none; at = m_items[at].next) {
        path = m_texts.data() + m_items[at].folder;
        path += m_texts.data() + m_items[at].name;
        if (isFoundIn(path, text))
            return true;
    }
    return false;
}

void Groups::sortBySaving(std::vector<GroupNumber>& groups) const
{
    std::ranges::sort(groups, [this](GroupNumber one, GroupNumber other) {
        const std::int64_t difference = savingOf(one) - savingOf(other);
        return difference != 0 ? difference > 0 : one < other;
    });
}

std::int64_t Groups::savingOf(GroupNumber group) const
{
    const StoredGroup& stored = m_groups[group];
    return stored.count == 0 ? 0 : stored.bytes - m_items[stored.best].size;
}

std::vector<ItemNumber> Groups::itemsOf(GroupNumber group) const
{
    std::vector<ItemNumber> items;
    items.reserve(m_groups[group].count);
    for (ItemNumber at = m_groups[group].first; at != none; at = m_items[at].next)
        items.push_back(at);
    return items;
}

Item Groups::item(ItemNumber number) const
{
    const StoredItem& stored = m_items[number];
    Item item;
    item.path = m_texts.data() + stored.folder;
    item.path += m_texts.data() + stored.name;
    item.state = {m_devices[stored.device], stored.inode, stored.size, stored.modified};
    item.detail = stored.detail;
    return item;
}

bool Groups::setChosen(ItemNumber number, bool chosen)
{
    StoredItem& item = m_items[number];
    StoredGroup& group = m_groups[item.group];
    if ((item.chosen != 0) == chosen)
        return true;
    if (chosen && group.chosen + 1 >= group.count)
        return false;
    item.chosen = chosen ? 1 : 0;
    if (chosen) {
        ++group.chosen;
        ++m_chosen.items;
        m_chosen.bytes += item.size;
    } else {
        --group.chosen;
        --m_chosen.items;
        m_chosen.bytes -= item.size;
    }
    return true;
}

void Groups::choose(const std::vector<GroupNumber>& groups, const KeepRule& rule)
{
    for (const GroupNumber group : groups) {
        const std::vector<ItemNumber> numbers = itemsOf(group);
        std::vector<Item> items;
        items.reserve(numbers.size());
        for (const ItemNumber number : numbers)
            items.push_back(item(number));
        const std::vector<bool> kept = rule.kept(items);
        if (kept.empty())
            continue;
        for (std::size_t index = 0; index < numbers.size(); ++index) {
            if (kept[index])
                setChosen(numbers[index], false);
        }
        for (std::size_t index = 0; index < numbers.size(); ++index) {
            if (!kept[index])
                setChosen(numbers[index], true);
        }
    }
}

void Groups::chooseNothing()
{
    m_toChooseAgain.clear();
    for (const StoredItem& item : m_items) {
        if (item.chosen)
            setChosen(static_cast<ItemNumber>(&item - m_items.begin()), false);
    }
}

} // namespace MenuExtension::Duplicates
