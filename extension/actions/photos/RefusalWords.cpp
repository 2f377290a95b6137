#include "extension/actions/photos/RefusalWords.h"

#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace MenuExtension::Photos {

std::string refusalInWords(std::string_view refusal)
{
    // Catalogues have %1 and %2 in the place of the numbers.
    std::string format;
    std::array<std::string_view, 2> numbers;
    std::size_t count = 0;
    for (std::string_view rest = refusal; !rest.empty();) {
        const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
        if (digits > 0 && count < numbers.size()) {
            numbers.at(count++) = rest.substr(0, digits);
            format += '%' + std::to_string(count);
            rest.remove_prefix(digits);
        } else {
            format += rest.front();
            rest.remove_prefix(1);
        }
    }
    const std::string localized = NS::LocalizedString("Photos", format);
    // What is in no catalogue may have such signs of its own.
    return localized == format ? std::string(refusal) : NS::stringWithFormat(localized, {numbers[0], numbers[1]});
}

} // namespace MenuExtension::Photos
