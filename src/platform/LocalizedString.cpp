#include "platform/LocalizedString.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

namespace NS {

namespace {

std::atomic<Localizer> installed = nullptr;

} // namespace

void setLocalizer(Localizer localizer)
{
    installed = localizer;
}

std::string LocalizedString(std::string_view table, std::string_view text)
{
    const Localizer localizer = installed;
    // Catalogues keep what they say of themselves under the empty text.
    if (!localizer || text.empty())
        return std::string(text);
    const int error = errno;
    std::string localized = localizer(table, text);
    errno = error;
    return localized;
}

std::string stringWithFormat(std::string_view format, std::initializer_list<std::string_view> arguments)
{
    std::string text;
    while (!format.empty()) {
        const bool numbered = format.size() > 1 && format[0] == '%' && format[1] >= '1' && format[1] <= '9';
        const std::size_t index = numbered ? static_cast<std::size_t>(format[1] - '1') : arguments.size();
        if (index < arguments.size())
            text += arguments.begin()[index];
        else
            text += format.front();
        format.remove_prefix(index < arguments.size() ? 2 : 1);
    }
    return text;
}

} // namespace NS
