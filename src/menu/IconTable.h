#pragma once

#include "platform/Image.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

/// The image of each action by its title: the catalogue's, and the two single forms of "Hide / Unhide item".
class IconTable {
public:
    /// Loads every image; one that is missing is fatal.
    IconTable();

    /// The image of exactly that title; nothing when the table has no such title.
    [[nodiscard]] std::optional<NS::Image> imageForTitle(std::string_view title) const;

    [[nodiscard]] std::size_t size() const { return m_images.size(); }

private:
    void add(std::string_view title, std::string_view imageName);

    std::unordered_map<std::string, NS::Image> m_images;
};

/// The process's table, built by the first caller. Any thread.
[[nodiscard]] const IconTable& iconTable();
