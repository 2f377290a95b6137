#pragma once

#include "showcase/ShowcaseEntry.h"

#include <vector>

/// One of the promotion orders, each as likely as the others. Main thread.
[[nodiscard]] std::vector<int> drawPromotionOrder();

/// The entries of the applications that the last check did not find installed, in the order of `numbers`. A number
/// that the catalogue does not have is skipped; an image that is missing is fatal. Main thread.
[[nodiscard]] std::vector<ShowcaseEntry> promotedApplications(const std::vector<int>& numbers);
