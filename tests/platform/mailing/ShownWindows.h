#pragma once

#include <QWidget>

#include <string>

/// The windows that this process shows.
namespace ShownWindows {

[[nodiscard]] QWidgetList all();
/// What they say, a line each.
[[nodiscard]] std::string texts();
void closeAll();

} // namespace ShownWindows
