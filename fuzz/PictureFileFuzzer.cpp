#include "extension/actions/photos/PhotoReading.h"
#include "extension/actions/photos/TiffDirectory.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace MenuExtension::Photos;

/// Whatever a file holds, looking through its directories and chunks stays within it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    TiffDirectory directory(file);
    constexpr int mostDirectories = 50;
    constexpr std::uint64_t compression = 259;
    for (int number = 0; number < mostDirectories; ++number) {
        if (!directory.has(compression) && directory.number(compression) != 0)
            std::abort();
        static_cast<void>(directory.isOfCopy());
        if (!directory.goOn())
            break;
    }
    if (chunksOfPng(file, {"tEXt", "acTL"}).size() > size)
        std::abort();
    return 0;
}
