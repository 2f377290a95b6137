#pragma once

#include "ResizePhoto.h"

#include <QString>

namespace MenuExtension::Resizing {

/// A file's name and the end of a sentence that begins with it.
[[nodiscard]] QString sentence(const QString& name, const std::string& end);
/// What became of a photo that was not resized, in a sentence that begins with its name.
[[nodiscard]] QString inWords(const QString& name, const Outcome& outcome);

} // namespace MenuExtension::Resizing
