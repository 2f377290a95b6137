#include "platform/linux/language/Catalogue.h"

#include "platform/LocalizedString.h"
#include "platform/linux/language/WantedLanguages.h"

#include <clocale>
#include <libintl.h>
#include <string>

namespace LinuxDesktop {

namespace {

constexpr const char* catalogue = "orvik-menu";

std::string fromCatalogue(std::string_view table, std::string_view text)
{
    // A table's texts have its name before them, as their file was made.
    std::string key(table);
    key.append("|\004").append(text);
    const char* const found = ::dgettext(catalogue, key.c_str());
    return found == key.c_str() ? std::string(text) : found;
}

} // namespace

void useCatalogue(const std::filesystem::path& programs)
{
    if (wantedLanguages().empty() || !std::setlocale(LC_MESSAGES, "") || !std::setlocale(LC_CTYPE, ""))
        return;
    ::bindtextdomain(catalogue, (programs / ORVIK_CATALOGUES).lexically_normal().c_str());
    ::bind_textdomain_codeset(catalogue, "UTF-8");
    NS::setLocalizer(fromCatalogue);
}

} // namespace LinuxDesktop
