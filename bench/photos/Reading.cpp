#include "Reading.h"

#include "extension/actions/find-duplicate-photos/WorkerJobs.h"
#include "extension/actions/photos/Worker.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <thread>

using namespace MenuExtension;

void Reading::addAll(const std::vector<std::string>& paths, SimilarPhotos::Collection& collection)
{
    std::atomic<std::size_t> next = 0;
    std::mutex adding;
    const auto read = [&] {
        Photos::Worker worker(ORVIK_PHOTO_WORKER, {});
        for (std::size_t number = next++; number < paths.size(); number = next++) {
            const LinuxDesktop::FileDescriptor file(::open(paths[number].c_str(), O_RDONLY | O_CLOEXEC));
            const std::array files{file.get()};
            const auto answer = worker.ask(SimilarPhotos::jobText(0), files, {});
            const auto result = SimilarPhotos::resultFrom(answer.bytes);
            const auto* described = std::get_if<SimilarPhotos::Described>(&result);
            if (!described) {
                std::fprintf(stderr, "%s was not read\n", paths[number].c_str());
                std::exit(EXIT_FAILURE);
            }
            const std::scoped_lock lock(adding);
            collection.add(static_cast<std::uint32_t>(number), described->thumb);
        }
    };
    std::vector<std::jthread> threads;
    for (unsigned thread = 0; thread < std::max(1U, std::thread::hardware_concurrency()); ++thread)
        threads.emplace_back(read);
}
