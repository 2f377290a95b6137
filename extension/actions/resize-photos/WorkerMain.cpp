// Resizes pictures in a process that they may bring down.
#include "ResizeJob.h"
#include "WriteResized.h"
#include "extension/actions/photos/PhotoReading.h"
#include "extension/actions/photos/WorkerProgram.h"
#include "platform/LocalizedString.h"

namespace {

using namespace MenuExtension;

std::string done(const Photos::Message& message)
{
    const auto job = Resizing::jobFrom(message.bytes);
    const std::size_t files = job && job->shownPixels > 0 ? 1 : 2;
    if (!job || message.files.size() != files)
        return Resizing::textOf(
            Resizing::Result(Resizing::Refused{NS::LocalizedString("Photos", "cannot be resized: this is no job")}));
    return Resizing::textOf(Resizing::resize(*job, message.files.front().get(), message.files.back().get()));
}

} // namespace

int main(int argc, char** argv)
{
    return Photos::runWorker(argc, argv, Photos::prepareReading,
                             [](Photos::Message& message) { return done(message); });
}
