#pragma once

#include <string>
#include <vector>

namespace LinuxDesktop {

/// The languages that the user wants texts in, the dearest first, as catalogues are named: "de_AT", then "de". They
/// end before English, which the texts are in already: of whoever wants it first there are none. From LANGUAGE,
/// LC_ALL, LC_MESSAGES and LANG, as the C library understands them.
[[nodiscard]] std::vector<std::string> wantedLanguages();

} // namespace LinuxDesktop
