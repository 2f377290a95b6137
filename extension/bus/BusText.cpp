#include "extension/bus/BusText.h"

#include <cstddef>

namespace MenuExtension {

bool isForBus(std::string_view text)
{
    for (std::size_t at = 2; at < text.size(); ++at) {
        const auto byte = [&](std::size_t back) { return static_cast<unsigned char>(text[at - back]); };
        const bool endsPlane = byte(1) == 0xbf && byte(0) >= 0xbe && (byte(2) & 0x0fU) == 0x0f;
        if (endsPlane || (byte(2) == 0xef && byte(1) == 0xb7 && byte(0) >= 0x90 && byte(0) <= 0xaf))
            return false;
    }
    return true;
}

} // namespace MenuExtension
