#pragma once

class KFileItem;
class QWidget;

namespace DolphinBridge {

/// Whether the one item that Dolphin asks about is the folder whose background was clicked in `window`.
[[nodiscard]] bool isBackground(const KFileItem& item, const QWidget* window);

} // namespace DolphinBridge
