#include "extension/actions/resize-photos/ResizeJob.h"

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

/// The bytes are what a worker that a picture has taken over may answer, and a job.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace MenuExtension::Resizing;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const Result result = resultFrom(text);
    if (const auto* resized = std::get_if<Resized>(&result)) {
        for (const Pixels& pixels : {resized->shownBefore, resized->shownAfter})
            require(pixels.bytes.size() == std::size_t{pixels.width} * pixels.height * 3);
    }
    if (const auto job = jobFrom(text)) {
        require(jobFrom(textOf(*job)) == job);
        const Size photo{4000, 3000, 1};
        const Size smaller = sizeFor(job->goal, photo);
        require(smaller.width >= 1 && smaller.width <= photo.width && smaller.height >= 1 &&
                smaller.height <= photo.height);
    }
    return 0;
}
