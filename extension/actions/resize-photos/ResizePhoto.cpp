#include "ResizePhoto.h"

#include "ResizedName.h"
#include "extension/actions/files/Trash.h"
#include "extension/actions/photos/ImageData.h"
#include "extension/actions/placing/Attributes.h"
#include "extension/actions/transfer/Placing.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <sys/random.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace MenuExtension::Resizing {

using LinuxDesktop::FileDescriptor;

namespace {

using namespace std::chrono_literals;

/// Some formats take long to write.
constexpr Photos::Limits limits{.memory = std::uint64_t{3} << 30U, .processor = 300s, .patience = 600s};

Outcome cannotBeSaved()
{
    return {.kind = Outcome::Kind::CannotBeSaved, .error = errno};
}

/// The name of a file that is on its way.
std::string temporaryName()
{
    std::uint64_t number = 0;
    static_cast<void>(::getrandom(&number, sizeof(number), 0));
    return ".orvik-resize-" + std::to_string(number);
}

bool clear(const FileDescriptor& file)
{
    return ::ftruncate(file.get(), 0) == 0 && ::lseek(file.get(), 0, SEEK_SET) == 0;
}

bool copyBytes(const FileDescriptor& from, const FileDescriptor& to, std::uint64_t size)
{
    if (!clear(to))
        return false;
    while (size > 0) {
        const ssize_t count = ::sendfile(to.get(), from.get(), nullptr, size);
        if (count <= 0)
            return false;
        size -= static_cast<std::uint64_t>(count);
    }
    return true;
}

std::optional<std::uint64_t> sizeOf(const FileDescriptor& file)
{
    struct stat status = {};
    return ::fstat(file.get(), &status) == 0 ? std::optional(static_cast<std::uint64_t>(status.st_size))
                                             : std::nullopt;
}

/// A file in a folder that has no name yet, or one that goes with it.
class Unnamed {
public:
    Unnamed(Transfers::SystemCalls& calls, const FileDescriptor& folder) : m_calls(calls), m_folder(folder)
    {
        m_file = m_calls.open(folder.get(), "", O_TMPFILE | O_RDWR, 0600);
        if (m_file || (errno != EOPNOTSUPP && errno != EISDIR && errno != ENOENT))
            return;
        m_name = temporaryName();
        m_file = m_calls.open(folder.get(), m_name.c_str(), O_RDWR | O_CREAT | O_EXCL, 0600);
        if (!m_file)
            m_name.clear();
    }
    ~Unnamed()
    {
        if (!m_name.empty())
            static_cast<void>(m_calls.remove(m_folder.get(), m_name.c_str(), 0));
    }
    Unnamed(const Unnamed&) = delete;
    Unnamed& operator=(const Unnamed&) = delete;

    [[nodiscard]] const FileDescriptor& file() const { return m_file; }

    /// Gives it a name that nothing has. False, with errno, which is EEXIST where something has it.
    bool take(const std::string& name)
    {
        if (m_name.empty()) {
            const std::string itself = "/proc/self/fd/" + std::to_string(m_file.get());
            return ::linkat(AT_FDCWD, itself.c_str(), m_folder.get(), name.c_str(), AT_SYMLINK_FOLLOW) == 0;
        }
        if (!Transfers::placeNew(m_calls, {m_folder.get(), m_name}, {m_folder.get(), name}, false))
            return false;
        m_name.clear();
        return true;
    }

private:
    Transfers::SystemCalls& m_calls;
    const FileDescriptor& m_folder;
    FileDescriptor m_file;
    std::string m_name;
};

Outcome outcomeOf(Photos::Fault fault)
{
    switch (fault) {
    case Photos::Fault::NotStarted:
        return {.kind = Outcome::Kind::WorkerIsMissing};
    case Photos::Fault::TookTooLong:
        return {.kind = Outcome::Kind::TakesTooLong};
    case Photos::Fault::Died:
        return {.kind = Outcome::Kind::TakesTooMuch};
    case Photos::Fault::Stopped:
        return {.kind = Outcome::Kind::Cancelled};
    }
    return {};
}

/// The path of an open folder, at this moment.
std::string pathOf(const FileDescriptor& folder)
{
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(folder.get()), failed);
}

/// Whether a JPEG file holds a second picture, or a film, behind the end of its first.
bool holdsAnother(const OpenedFile& photo)
{
    constexpr std::size_t longestSign = 4;
    Exif::ByteSource file(photo.file.get());
    const auto parts = Exif::imageData(file);
    if (!parts || parts->empty() || !file.look(0, 3).starts_with("\xff\xd8"))
        return false;
    const Exif::Extent& rest = parts->back();
    std::uint64_t place = rest.offset;
    while (place < rest.offset + rest.length) {
        const std::string_view bytes = file.look(place, Exif::ByteSource::mostAtOnce);
        if (bytes.find("\xff\xd8\xff") != std::string_view::npos || bytes.find("ftyp") != std::string_view::npos)
            return true;
        if (bytes.size() <= longestSign)
            return false;
        place += bytes.size() - longestSign;
    }
    return false;
}

/// Gives the new file the first name of the pattern that is free.
Outcome nameByPattern(Unnamed& made, const OpenedFile& photo, const Target& target, Outcome outcome)
{
    constexpr unsigned tries = 10'000;
    for (unsigned number = 1; number < tries; ++number) {
        outcome.name = resizedName(target.pattern, photo.name, outcome.after, number);
        if (made.take(outcome.name))
            return outcome;
        if (errno != EEXIST)
            break;
    }
    return cannotBeSaved();
}

Outcome takePlaceOf(Unnamed& made, const OpenedFile& photo, const Target& target, Outcome outcome)
{
    if (!photo.isUnchanged())
        return {.kind = Outcome::Kind::Changed};
    if (auto words = moveToTrash(pathOf(photo.folder) + '/' + photo.name))
        return {.kind = Outcome::Kind::CannotBeTrashed, .words = *std::move(words)};
    outcome.name = photo.name;
    if (made.take(photo.name))
        return outcome;
    const int error = errno;
    // It is not lost: what was made of the photo lies beside where that was.
    outcome = nameByPattern(made, photo, target, std::move(outcome));
    return {.kind = Outcome::Kind::OnlyInTrash, .name = std::move(outcome.name), .error = error};
}

} // namespace

PhotoResizer::PhotoResizer(std::string worker, std::unique_ptr<Transfers::SystemCalls> calls)
    : m_worker(std::move(worker), limits), m_calls(std::move(calls))
{}

Outcome PhotoResizer::resize(const OpenedFile& photo, const Goal& goal, const Target& target,
                             const std::stop_token& stop)
{
    if (target.kind == Target::Kind::InPlace && holdsAnother(photo))
        return {.kind = Outcome::Kind::Refused,
                .words = NS::LocalizedString(
                    "Photos", "cannot be resized in its place: a second picture or a film in it would be lost")};
    FileDescriptor elsewhere;
    if (target.kind == Target::Kind::Folder) {
        elsewhere = FileDescriptor(::open(target.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!elsewhere)
            return cannotBeSaved();
    }
    const FileDescriptor& folder = elsewhere ? elsewhere : photo.folder;
    Unnamed made(*m_calls, folder);
    if (!made.file())
        return cannotBeSaved();
    Outcome outcome = make(photo, goal, folder, made.file(), stop);
    if (outcome.kind != Outcome::Kind::Done)
        return outcome;
    struct stat status = {};
    // The photo itself keeps what has no place in the other folder.
    if (::fstat(photo.file.get(), &status) != 0 ||
        !copyAttributes(photo.file.get(), made.file().get(), status, Unsupported::AreLeft) ||
        ::fsync(made.file().get()) != 0)
        return cannotBeSaved();
    if (stop.stop_requested())
        return {.kind = Outcome::Kind::Cancelled};
    outcome = target.kind == Target::Kind::InPlace ? takePlaceOf(made, photo, target, std::move(outcome))
                                                   : nameByPattern(made, photo, target, std::move(outcome));
    const bool isDurable = syncFolder(folder);
    if (outcome.kind == Outcome::Kind::Done && !isDurable)
        return cannotBeSaved();
    return outcome;
}

Outcome PhotoResizer::make(const OpenedFile& photo, const Goal& goal, const FileDescriptor& folder,
                           const FileDescriptor& made, const std::stop_token& stop)
{
    constexpr int tries = 3;
    const std::array files{photo.file.get(), made.get()};
    Goal tried = goal;
    for (int count = 0; count < tries; ++count) {
        if (!clear(made))
            return cannotBeSaved();
        const Photos::Answer answer = m_worker.ask(textOf(Job{.goal = tried}), files, stop);
        if (answer.fault)
            return outcomeOf(*answer.fault);
        const Result result = resultFrom(answer.bytes);
        if (const auto* refused = std::get_if<Refused>(&result))
            return {.kind = Outcome::Kind::Refused, .words = refused->why};
        const auto& resized = std::get<Resized>(result);
        Outcome outcome{.before = resized.before, .after = resized.after};
        if (resized.before == resized.after) {
            outcome.kind = Outcome::Kind::SmallAlready;
            return outcome;
        }
        // What is on the disk is what the worker has made.
        if (sizeOf(made) != resized.after.bytes)
            return cannotBeSaved();
        if (resized.data == Data::Kept)
            return outcome;
        const FileDescriptor whole = withData(photo, folder, made, stop);
        if (!whole && stop.stop_requested())
            return {.kind = Outcome::Kind::Cancelled};
        if (!whole)
            return {.kind = Outcome::Kind::Refused,
                    .words = NS::LocalizedString("Photos",
                                                 "cannot be resized: without ExifTool it would lose its Exif data")};
        const auto size = sizeOf(whole);
        if (!size || !copyBytes(whole, made, *size))
            return cannotBeSaved();
        outcome.after.bytes = *size;
        if (goal.kind != Goal::Kind::Bytes || *size <= goal.value)
            return outcome;
        // The data counts too.
        const std::uint64_t data = *size - resized.after.bytes;
        tried.value = goal.value - std::min(data, goal.value - 1);
    }
    return {.kind = Outcome::Kind::Refused, .words = NS::LocalizedString("Photos", "cannot be made that small")};
}

FileDescriptor PhotoResizer::withData(const OpenedFile& photo, const FileDescriptor& folder,
                                      const FileDescriptor& made, const std::stop_token& stop)
{
    // For another process.
    const auto path = [](const FileDescriptor& file) {
        return "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(file.get());
    };
    // ExifTool goes by the end of a name, where there is one, and the picture has none.
    const std::string name = temporaryName();
    // The picture is no more as large as its data may say, and lies as the library has written it; ExifTool takes one
    // that is compressed as JPEG for a preview.
    const auto answer = m_exifTool.run({"-q", "-q", "-m", "-TagsFromFile", path(photo.file), "-all:all",
                                        "--Orientation", "--ExifImageWidth", "--ExifImageHeight", "--PreviewImage",
                                        "-o", path(folder) + '/' + name, path(made)},
                                       stop);
    FileDescriptor whole = m_calls->open(folder.get(), name.c_str(), O_RDONLY | O_NOFOLLOW, 0);
    static_cast<void>(m_calls->remove(folder.get(), name.c_str(), 0));
    return answer.end == Exif::ExifTool::End::Done ? std::move(whole) : FileDescriptor();
}

std::optional<Result> PhotoResizer::preview(const OpenedFile& photo, const Goal& goal, std::uint32_t pixels,
                                            const std::stop_token& stop)
{
    const std::array files{photo.file.get()};
    const Photos::Answer answer = m_worker.ask(textOf(Job{goal, pixels}), files, stop);
    return answer.fault ? std::nullopt : std::optional(resultFrom(answer.bytes));
}

std::uint64_t fairShare(std::vector<std::uint64_t> sizes, std::uint64_t total)
{
    std::ranges::sort(sizes);
    std::uint64_t left = total;
    for (std::size_t index = 0; index < sizes.size(); ++index) {
        const std::uint64_t share = left / (sizes.size() - index);
        if (sizes[index] > share)
            return std::max<std::uint64_t>(share, 1);
        left -= sizes[index];
    }
    return std::max<std::uint64_t>(total, 1);
}

Goal sharedGoal(const Request& request, const std::vector<std::string>& paths, Goal goal)
{
    std::vector<std::uint64_t> sizes;
    for (const std::string& path : paths) {
        const auto photo = openWithFolder(request, path);
        struct stat status = {};
        if (photo && ::fstat(photo->file.get(), &status) == 0)
            sizes.push_back(static_cast<std::uint64_t>(status.st_size));
    }
    goal.value = fairShare(std::move(sizes), goal.value);
    return goal;
}

void resizePhotos(const Request& request, const std::vector<std::string>& paths, const Goal& goal,
                  const Target& target, const TakeOutcome& take, const std::stop_token& stop,
                  const std::string& worker)
{
    constexpr unsigned mostThreads = 8;
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    const auto work = [&] {
        PhotoResizer resizer(worker);
        for (std::size_t index = next++; index < paths.size() && !stop.stop_requested(); index = next++) {
            const auto photo = openWithFolder(request, paths[index]);
            Outcome outcome = photo ? resizer.resize(*photo, goal, target, stop)
                                    : Outcome{.kind = Outcome::Kind::CannotBeOpened, .error = errno};
            const std::lock_guard lock(mutex);
            take(index, std::move(outcome));
        }
    };
    const std::size_t threads =
        std::min<std::size_t>(std::clamp(std::thread::hardware_concurrency(), 1U, mostThreads), paths.size());
    std::vector<std::jthread> others;
    for (std::size_t thread = 1; thread < threads; ++thread)
        others.emplace_back(work);
    work();
}

} // namespace MenuExtension::Resizing
