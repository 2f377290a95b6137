#pragma once

#include <string>

/// File managers, over the bus.
namespace MenuExtension::FileManager {

enum class Shown {
    Yes,
    /// There is no file manager that does that.
    Nobody,
    /// It was asked and has not answered; it may show it yet.
    Late,
};

/// Shows a folder in a window of its own. Asks `caller`, by its unique name, before any other; it may be empty.
[[nodiscard]] Shown showFolder(const std::string& folder, const std::string& caller);
/// Shows an item selected in its folder; the same.
[[nodiscard]] Shown showItem(const std::string& item, const std::string& caller);

} // namespace MenuExtension::FileManager
