#pragma once

#include "Fields.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace MenuExtension::Exif {

/// What several photos have in common: each tag once. It stays small, however many they are.
class Merged {
public:
    struct Value {
        /// Of the first that has it; cut where it is very long.
        std::string text;
        bool differs = false;
        /// How many photos have it.
        std::size_t photos = 0;
    };
    struct Line {
        std::string family;
        std::string group;
        std::string name;
        Value value;
    };

    void add(const Tags& tags, bool holdsMore = false);

    [[nodiscard]] std::size_t photos() const { return m_photos; }
    /// Whether a file holds more than the picture.
    [[nodiscard]] bool holdsMore() const { return m_holdsMore; }
    /// In the order in which they were met. A value that some photos do not have differs.
    [[nodiscard]] const std::vector<Line>& lines() const { return m_lines; }
    /// The photos that do not have it have an empty one.
    [[nodiscard]] const Value& field(Field field) const { return m_fields[static_cast<std::size_t>(field)]; }
    [[nodiscard]] bool differs(const Value& value) const { return value.differs || value.photos != m_photos; }

private:
    static constexpr std::size_t fields = static_cast<std::size_t>(Field::Place) + 1;

    std::size_t m_photos = 0;
    bool m_holdsMore = false;
    std::vector<Line> m_lines;
    std::map<std::array<std::string, 3>, std::size_t> m_places;
    std::array<Value, fields> m_fields;
};

} // namespace MenuExtension::Exif
