// Reads the pictures that are compared and shown, in a process that they may bring down.
#include "Thumb.h"
#include "WorkerJobs.h"
#include "extension/actions/photos/PhotoReading.h"
#include "extension/actions/photos/WorkerProgram.h"
#include "platform/LocalizedString.h"

namespace {

using namespace MenuExtension;
using namespace MenuExtension::SimilarPhotos;

/// As large as a border and a thumb are found exactly in.
constexpr int describedPixels = 320;

Pixels pixelsOf(const Photos::Image& image)
{
    return {vips_image_get_width(image.get()), vips_image_get_height(image.get()),
            static_cast<const std::uint8_t*>(vips_image_get_data(image.get()))};
}

Result resultOf(const Photos::Message& message)
{
    const auto asked = pixelsFrom(message.bytes);
    if (!asked || message.files.size() != 1)
        return Refused{NS::LocalizedString("Photos", "cannot be read: this is no question")};
    const auto opened = Photos::openPhoto(message.files.front().get());
    if (const auto* unreadable = std::get_if<Photos::Unreadable>(&opened))
        return Refused{unreadable->why};
    const auto& photo = std::get<Photos::OpenedPhoto>(opened);
    // The others would go with it.
    if (photo.holdsSeveral)
        return Refused{NS::LocalizedString("Photos", "holds several pictures, and only one would be compared")};
    const auto read = Photos::readSmall(photo, *asked == 0 ? describedPixels : static_cast<int>(*asked));
    if (const auto* unreadable = std::get_if<Photos::Unreadable>(&read))
        return Refused{unreadable->why};
    const Pixels pixels = pixelsOf(std::get<Photos::Image>(read));
    const auto width = static_cast<std::uint32_t>(pixels.width);
    const auto height = static_cast<std::uint32_t>(pixels.height);
    if (*asked != 0)
        return Shown{width, height,
                     std::string(reinterpret_cast<const char*>(pixels.bytes), std::size_t{width} * height * 3)};
    return Described{static_cast<std::uint32_t>(photo.width), static_cast<std::uint32_t>(photo.height),
                     thumbOf(pixels)};
}

} // namespace

int main(int argc, char** argv)
{
    return Photos::runWorker(argc, argv, Photos::prepareReading,
                             [](Photos::Message& message) { return resultText(resultOf(message)); });
}
