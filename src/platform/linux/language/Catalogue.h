#pragma once

#include <filesystem>

namespace LinuxDesktop {

/// Has NS::LocalizedString() answer from the catalogue of the user's language, where that is not English: nothing is
/// opened then. For programs without a toolkit, before they start a thread. `programs` is the folder of the programs
/// that users start. What the C library says of errors is in that language from then on too.
void useCatalogue(const std::filesystem::path& programs);

} // namespace LinuxDesktop
