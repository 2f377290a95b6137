#include "Batch.h"

#include "extension/actions/photos/ImageData.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>

namespace MenuExtension::Exif {

namespace {

/// Each has a program of 50 MB.
constexpr unsigned mostThreads = 4;
/// What one thread takes at once: little at first, so that there is something to see.
constexpr std::size_t firstShare = 2;
constexpr std::size_t readAtOnce = 24;
/// Of so few it is said before they are changed what else they hold, for which all of a file has to be read. Of more
/// it is said when they have been saved, for which it is read anyway.
constexpr std::size_t fewPhotos = 8;
/// Each needs room for a copy of the photo for as long.
constexpr std::size_t savedAtOnce = 8;

/// Calls `work` with a reader of the thread's own and the first and last index of each share.
void share(std::size_t count, std::size_t mostAtOnce, const std::stop_token& stop,
           const std::function<void(TagReader&, std::size_t, std::size_t)>& work)
{
    std::atomic<std::size_t> next = 0;
    const auto take = [&] {
        TagReader reader;
        std::size_t size = std::min(firstShare, mostAtOnce);
        for (std::size_t begin = next.fetch_add(size); begin < count && !stop.stop_requested();
             begin = next.fetch_add(size)) {
            work(reader, begin, std::min(begin + size, count));
            size = mostAtOnce;
        }
    };
    const unsigned cores = std::clamp(std::thread::hardware_concurrency(), 1U, mostThreads);
    const std::size_t threads = std::min<std::size_t>(cores, (count + firstShare - 1) / firstShare);
    std::vector<std::jthread> others;
    for (std::size_t thread = 1; thread < threads; ++thread)
        others.emplace_back(take);
    take();
}

/// The photos of a share; of those that cannot be opened it is told why.
struct Opened {
    Opened(const Request& request, const std::vector<std::string>& paths, std::size_t begin, std::size_t end,
           const TakeTrouble& take)
    {
        for (std::size_t index = begin; index < end; ++index) {
            if (auto photo = openWithFolder(request, paths[index])) {
                photos.push_back(*std::move(photo));
                indices.push_back(index);
            } else {
                take(index, {.kind = Trouble::Kind::CannotBeOpened, .error = errno});
            }
        }
    }

    std::vector<OpenedFile> photos;
    std::vector<std::size_t> indices;
};

} // namespace

void readPhotos(const Request& request, const std::vector<std::string>& paths, const TakeReading& take,
                const std::stop_token& stop)
{
    std::mutex mutex;
    const auto report = [&](std::size_t index, Reading reading) {
        const std::lock_guard lock(mutex);
        take(index, std::move(reading));
    };
    share(paths.size(), readAtOnce, stop, [&](TagReader& exifTool, std::size_t begin, std::size_t end) {
        const Opened opened(request, paths, begin, end, [&](std::size_t index, Trouble trouble) {
            report(index, {.trouble = std::move(trouble)});
        });
        if (opened.photos.empty())
            return;
        auto readings = exifTool.read(opened.photos, stop);
        for (std::size_t place = 0; place < readings.size(); ++place) {
            if (readings[place].trouble.kind == Trouble::Kind::Cancelled)
                continue;
            if (paths.size() <= fewPhotos) {
                ByteSource bytes(opened.photos[place].file.get());
                readings[place].holdsMore = holdsMore(bytes);
            }
            report(opened.indices[place], std::move(readings[place]));
        }
    });
}

void savePhotos(const Request& request, const std::vector<std::string>& paths, const Edits& edits,
                const SaveOptions& options, const TakeTrouble& take, const std::stop_token& stop)
{
    std::mutex mutex;
    const auto report = [&](std::size_t index, Trouble trouble) {
        const std::lock_guard lock(mutex);
        take(index, std::move(trouble));
    };
    share(paths.size(), savedAtOnce, stop, [&](TagReader& exifTool, std::size_t begin, std::size_t end) {
        const Opened opened(request, paths, begin, end, report);
        auto troubles = savePhotos(exifTool, opened.photos, edits, options, stop);
        for (std::size_t place = 0; place < troubles.size(); ++place)
            report(opened.indices[place], std::move(troubles[place]));
    });
}

} // namespace MenuExtension::Exif
