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
    for (std::size_t count = 0; !refusal.empty();) {
        const std::size_t digits = std::min(refusal.find_first_not_of("0123456789"), refusal.size());
        if (digits > 0 && count < numbers.size()) {
            numbers.at(count++) = refusal.substr(0, digits);
            format += '%' + std::to_string(count);
            refusal.remove_prefix(digits);
        } else {
            format += refusal.front();
            refusal.remove_prefix(1);
        }
    }
    return NS::stringWithFormat(NS::LocalizedString("Photos", format), {numbers[0], numbers[1]});
}

} // namespace MenuExtension::Photos
