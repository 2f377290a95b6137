#pragma once

#include "platform/OpenPanel.h"

#include <memory>

enum class FolderSelection { One, Several };

/// A panel in which the user grants access to folders: set up, not shown yet. Main thread.
[[nodiscard]] std::shared_ptr<NS::OpenPanel> makeFolderPanel(FolderSelection selection);
