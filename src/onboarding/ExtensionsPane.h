#pragma once

/// Shows where the user switches extensions on and off. Main thread.
void openExtensionsPane();
