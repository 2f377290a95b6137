#pragma once

#include "Trouble.h"

#include <QString>

namespace MenuExtension::Exif {

/// What went wrong, in a sentence, and what to do where that helps.
[[nodiscard]] QString inWords(const Trouble& trouble);

} // namespace MenuExtension::Exif
