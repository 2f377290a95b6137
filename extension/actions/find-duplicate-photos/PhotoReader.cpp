#include "PhotoReader.h"

#include "platform/LocalizedString.h"

#include <array>
#include <utility>

namespace MenuExtension::SimilarPhotos {

namespace {

std::string wordsFor(Photos::Fault fault)
{
    using Photos::Fault;
    switch (fault) {
    case Fault::NotStarted:
        return NS::LocalizedString(
            "Photos",
            "cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again");
    case Fault::TookTooLong:
        return NS::LocalizedString("Photos", "takes too long to read");
    case Fault::Died:
    case Fault::Stopped:
        break;
    }
    return NS::LocalizedString("Photos",
                               "cannot be read: it is damaged, or needs more memory than a picture may take");
}

} // namespace

PhotoReader::PhotoReader(std::string program, Photos::Limits limits) : m_worker(std::move(program), limits) {}

std::optional<Result> PhotoReader::read(int file, std::uint32_t pixels, const std::stop_token& stop)
{
    const std::array files{file};
    const Photos::Answer answer = m_worker.ask(jobText(pixels), files, stop);
    if (answer.fault == Photos::Fault::Stopped)
        return std::nullopt;
    return answer.fault ? Result(Refused{wordsFor(*answer.fault)}) : resultFrom(answer.bytes);
}

} // namespace MenuExtension::SimilarPhotos
