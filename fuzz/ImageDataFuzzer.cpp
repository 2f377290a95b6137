#include "extension/actions/photos/ImageData.h"

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

/// The bytes are a picture's file. What is said to be the picture lies in it, and it is the same as itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace MenuExtension::Exif;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    ByteSource file(bytes);
    const auto parts = imageData(file);
    if (!parts)
        return 0;
    for (const Extent& part : *parts)
        require(part.offset <= size && part.length <= size - part.offset);
    ByteSource same(bytes);
    require(haveSameImage(file, same) == true);
    return 0;
}
