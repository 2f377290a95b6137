#pragma once

#include "ResizeJob.h"
#include "extension/actions/photos/ExifTool.h"
#include "extension/actions/photos/Worker.h"
#include "extension/actions/placing/OpenedFile.h"
#include "extension/actions/transfer/SystemCalls.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace MenuExtension::Resizing {

/// Where the resized photos go.
struct Target {
    enum class Kind { Beside, Folder, InPlace };
    Kind kind = Kind::Beside;
    /// The path of the folder, for that.
    std::string folder = {};
    /// Of the names; for InPlace, of what could not take the photo's place. One that isNamePattern() takes.
    std::string pattern = "{name}-{width}x{height}";
};

/// What became of one photo.
struct Outcome {
    enum class Kind {
        Done,
        /// It is that small already.
        SmallAlready,
        Cancelled,
        /// errno's reason is in `error` for these.
        CannotBeOpened,
        CannotBeSaved,
        /// The desktop's own words are in `words`.
        CannotBeTrashed,
        /// The photo is in the trash, but the resized one could not take its place, for errno's reason in `error`. It
        /// has a name by the pattern, in `name`, unless that could not be given to it either.
        OnlyInTrash,
        /// The end of a sentence that begins with the name is in `words`.
        Refused,
        TakesTooLong,
        TakesTooMuch,
        WorkerIsMissing,
        /// Another program has changed it meanwhile.
        Changed,
    };
    Kind kind = Kind::Done;
    Size before = {};
    Size after = {};
    /// The new file's name.
    std::string name = {};
    int error = 0;
    std::string words = {};
};

/// Has photos resized by a worker. One thread at a time.
class PhotoResizer {
public:
    explicit PhotoResizer(std::string worker = Photos::programBeside("resize-photos-worker"),
                          std::unique_ptr<Transfers::SystemCalls> calls = std::make_unique<Transfers::SystemCalls>());

    /// Resizes a photo, writes the result to the disk, and only then gives it its name, which nothing has. A photo
    /// that it takes the place of goes to the trash. Whatever fails or ends on the way, the photo stays as it was, or
    /// is in the trash.
    [[nodiscard]] Outcome resize(const OpenedFile& photo, const Goal& goal, const Target& target,
                                 const std::stop_token& stop);

    /// What a photo would become, to look at, in at most so many pixels each way.
    [[nodiscard]] std::optional<Result> preview(const OpenedFile& photo, const Goal& goal, std::uint32_t pixels,
                                                const std::stop_token& stop);

private:
    /// Writes the resized photo to the open file `made`, which is to lie in the folder.
    Outcome make(const OpenedFile& photo, const Goal& goal, const LinuxDesktop::FileDescriptor& folder,
                 const LinuxDesktop::FileDescriptor& made, const std::stop_token& stop);
    /// The photo's data and the picture that was made of it in one file, which has no name any more; nothing where
    /// ExifTool does not write it.
    LinuxDesktop::FileDescriptor withData(const OpenedFile& photo, const LinuxDesktop::FileDescriptor& folder,
                                          const LinuxDesktop::FileDescriptor& made, const std::stop_token& stop);

    Photos::Worker m_worker;
    Exif::ExifTool m_exifTool;
    std::unique_ptr<Transfers::SystemCalls> m_calls;
};

/// A goal in bytes for all the photos together, as one that each of them can have: those that are small enough leave
/// their share to the others. Looks at the files.
[[nodiscard]] Goal sharedGoal(const Request& request, const std::vector<std::string>& paths, Goal goal);
/// The most bytes that each may have so that all together have no more than `total`; `sizes` are those they have.
[[nodiscard]] std::uint64_t fairShare(std::vector<std::uint64_t> sizes, std::uint64_t total);

/// Resizes many photos on as many threads as help. Called from them, one at a time; returns when all is done or it is
/// asked to stop.
using TakeOutcome = std::function<void(std::size_t index, Outcome outcome)>;
void resizePhotos(const Request& request, const std::vector<std::string>& paths, const Goal& goal,
                  const Target& target, const TakeOutcome& take, const std::stop_token& stop,
                  const std::string& worker = Photos::programBeside("resize-photos-worker"));

} // namespace MenuExtension::Resizing
