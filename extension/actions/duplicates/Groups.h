#pragma once

#include "extension/actions/duplicates/GrowingArray.h"
#include "extension/actions/duplicates/Item.h"
#include "extension/actions/duplicates/KeepRule.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace MenuExtension::Duplicates {

/// Numbers of items and groups, which stay until clear().
using ItemNumber = std::uint32_t;
using GroupNumber = std::uint32_t;

/// Groups of duplicates, and which of them are chosen to be removed: never all of a group, whatever is asked. Kept so
/// small that there may be millions. One thread at a time; several while nobody changes anything.
class Groups {
public:
    /// What removing would bring.
    struct Sum {
        std::uint64_t items = 0;
        std::int64_t bytes = 0;
        friend bool operator==(const Sum&, const Sum&) = default;
    };

    /// `isBetter` is as a rule has it. Without it, the larger of two is the better one.
    explicit Groups(std::function<bool(const Item& one, const Item& other)> isBetter = {});

    /// Adds a group, or items to the one that was added under that key, where it is not 0. They are not chosen, but
    /// for those that were when all was cleared, and are the same still.
    GroupNumber add(std::uint64_t key, const std::vector<Item>& items);
    void clear();
    /// Forgets items that are gone. A group with one left is none any more.
    void forget(const std::vector<ItemNumber>& items);

    /// All that have at least two items, the largest saving first.
    [[nodiscard]] std::vector<GroupNumber> bySaving() const;
    /// The same where one path at least contains the text, without regard to ASCII case.
    [[nodiscard]] std::vector<GroupNumber> bySaving(std::string_view text) const;

    [[nodiscard]] std::vector<ItemNumber> itemsOf(GroupNumber group) const;
    [[nodiscard]] std::uint32_t countOf(GroupNumber group) const { return m_groups[group].count; }
    [[nodiscard]] std::uint32_t chosenOf(GroupNumber group) const { return m_groups[group].chosen; }
    [[nodiscard]] ItemNumber firstOf(GroupNumber group) const { return m_groups[group].first; }
    /// The best item of the group.
    [[nodiscard]] ItemNumber bestOf(GroupNumber group) const { return m_groups[group].best; }
    /// What is saved when only the best item of the group stays.
    [[nodiscard]] std::int64_t savingOf(GroupNumber group) const;
    [[nodiscard]] Item item(ItemNumber number) const;
    [[nodiscard]] GroupNumber groupOf(ItemNumber number) const { return m_items[number].group; }

    [[nodiscard]] bool isChosen(ItemNumber number) const { return m_items[number].chosen; }
    /// False, and nothing changes, where the group would have no item left.
    bool setChosen(ItemNumber number, bool chosen);
    /// Chooses all of the groups that the rule does not keep. Where it says nothing about a group, nothing changes.
    void choose(const std::vector<GroupNumber>& groups, const KeepRule& rule);
    void chooseNothing();
    [[nodiscard]] const Sum& chosen() const { return m_chosen; }

private:
    static constexpr ItemNumber none = UINT32_MAX;

    struct StoredItem {
        /// Where its name and its folder begin among the texts, each ended by a NUL.
        std::uint64_t name;
        std::uint64_t folder;
        ino_t inode;
        std::int64_t size;
        std::int64_t modified;
        std::uint64_t detail;
        GroupNumber group;
        /// Of its group.
        ItemNumber next;
        /// Index of its device.
        std::uint32_t device : 31;
        std::uint32_t chosen : 1;
    };
    struct StoredGroup {
        std::int64_t bytes;
        ItemNumber first;
        ItemNumber last;
        ItemNumber best;
        std::uint32_t count;
        std::uint32_t chosen;
    };

    void append(GroupNumber group, const Item& item);
    void chooseAgain(GroupNumber group);
    [[nodiscard]] std::uint64_t folderText(std::string_view folder);
    [[nodiscard]] std::uint32_t deviceIndex(dev_t device);
    [[nodiscard]] bool contains(GroupNumber group, std::string_view text) const;
    void sortBySaving(std::vector<GroupNumber>& groups) const;
    void count(StoredGroup& group, ItemNumber added);
    [[nodiscard]] bool isBetter(ItemNumber one, ItemNumber other) const;
    void relink(StoredGroup& group, const std::vector<ItemNumber>& items);

    KeepRule m_rule;
    GrowingArray<char> m_texts;
    GrowingArray<StoredItem> m_items;
    GrowingArray<StoredGroup> m_groups;
    std::vector<dev_t> m_devices;
    /// Of the keys that items may yet be added to.
    std::unordered_map<std::uint64_t, GroupNumber> m_keys;
    /// Folders that were met lately.
    std::unordered_map<std::string, std::uint64_t> m_folders;
    Sum m_chosen;
    /// Those that were chosen when all was cleared, and have not been added again.
    std::unordered_map<std::string, FileState> m_toChooseAgain;
};

} // namespace MenuExtension::Duplicates
