#include "platform/linux/store/PropertyList.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

/// Whatever the reader takes, the writer writes, and it is then read as the same value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace LinuxDesktop::PropertyList;
    const auto value = parse({reinterpret_cast<const char*>(data), size});
    if (!value) {
        require(!value.error().empty());
        return 0;
    }
    const auto bytes = serialise(*value);
    require(static_cast<bool>(bytes));
    const auto back = parse(*bytes);
    require(back && identical(*back, *value));
    const auto again = serialise(*back);
    require(again && *again == *bytes);
    if (value->dictionary()) {
        for (const auto& [key, item] : *value->dictionary())
            require(!unstorableKeyReason(key) && !unstorableReason(item));
    }
    return 0;
}
