#pragma once

#include "platform/Value.h"
#include "platform/linux/store/PropertyList.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LinuxDesktop {

/// What was written to a domain and is not in its file yet, to be laid over what the file holds. A value that was set
/// replaces whatever is there. A removal concerns the value that was seen: removals that wait together are carried
/// out together, and none of them where the file has come to hold something that one of them was not meant for. One
/// thread at a time; copies are cheap.
class Changes {
public:
    /// `text` is how the value stands in a file.
    void set(std::string_view key, NS::Value value, std::string text);
    /// Of a key that holds one of the `meant` values, or nothing.
    void remove(std::string_view key, std::vector<NS::Value> meant);
    /// Hides all that the file holds.
    void replaceAll(const NS::Value::Dictionary& values);
    /// Takes back what `written`, an earlier copy of these, holds.
    void forget(const Changes& written);

    [[nodiscard]] bool empty() const { return m_keys.empty() && !hidesFile(); }
    /// Whether it is the same with them as without, whatever the file holds.
    [[nodiscard]] bool changeNothing() const;
    /// Whether replaceAll() was called.
    [[nodiscard]] bool hidesFile() const { return m_replaced != 0; }
    [[nodiscard]] bool isSet(std::string_view key) const;
    [[nodiscard]] bool isRemoved(std::string_view key) const;

    /// What a key holds, and what all of them do, where the file holds `file`.
    [[nodiscard]] std::optional<NS::Value> over(const NS::Value::Dictionary& file, std::string_view key) const;
    [[nodiscard]] NS::Value::Dictionary over(const NS::Value::Dictionary& file) const;
    /// Of the values that were set, as far as they are known. They live as long as this is not changed.
    [[nodiscard]] PropertyList::Texts texts() const;

private:
    struct Change {
        /// Nothing: the key was removed.
        std::optional<NS::Value> value;
        std::shared_ptr<const std::string> text;
        std::vector<NS::Value> meant;
        std::uint64_t serial = 0;
    };

    [[nodiscard]] bool removalsHold(const NS::Value::Dictionary& file) const;

    std::map<std::string, Change, std::less<>> m_keys;
    std::uint64_t m_serial = 0;
    /// The serial of the last replaceAll(); 0 when there was none.
    std::uint64_t m_replaced = 0;
};

} // namespace LinuxDesktop
