#include "extension/actions/find-duplicate-files/FileComparison.h"

#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>
#include <vector>

namespace MenuExtension {

using Duplicates::FileState;
using LinuxDesktop::FileDescriptor;
using Result = FileReader::Result;
using Wait = FileReader::Wait;

namespace {

/// More do not help: what they wait for is memory or the disk.
constexpr std::size_t mostThreads = 8;
/// How many files a thread has the disk sort at once.
constexpr std::size_t largestWindow = 64;

std::size_t threadCount()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 2, mostThreads);
}

Result readAs(FileComparison::What what, const FileReader& reader, int file, const FileState& state, Wait wait,
              Digest& digest)
{
    return what == FileComparison::What::Ends ? reader.readEnds(file, state, wait, digest)
                                              : reader.readWhole(file, state, wait, digest);
}

} // namespace

/// A file that has to be waited for.
struct FileComparison::Pending {
    Reading* reading;
    FileDescriptor file;
    std::uint64_t position;
};

FileComparison::FileComparison(const FileTree& tree, Trouble trouble, std::function<void(std::size_t)> hasRead,
                               std::stop_token stop)
    : m_tree(tree), m_trouble(std::move(trouble)), m_hasRead(std::move(hasRead)), m_stop(std::move(stop))
{}

void FileComparison::read(std::span<Reading> readings, What what) const
{
    // The order in which most file systems lay files and what is known of them.
    std::ranges::sort(readings, {}, [this](const Reading& reading) {
        const FileTree::File& file = m_tree.files()[reading.file];
        return std::pair(file.device, file.inode);
    });
    constexpr std::size_t windowsForEach = 4;
    const std::size_t threads = std::min(threadCount(), readings.size());
    const std::size_t window =
        std::clamp<std::size_t>(readings.size() / (threadCount() * windowsForEach), 1, largestWindow);
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> others;
    for (std::size_t count = 1; count < threads; ++count)
        others.emplace_back([&] { work(readings, what, window, next); });
    work(readings, what, window, next);
}

void FileComparison::work(std::span<Reading> readings, What what, std::size_t window,
                          std::atomic<std::size_t>& next) const
{
    const FileReader reader(m_hasRead, m_stop);
    std::vector<Pending> pending;
    for (;;) {
        const std::size_t begin = next.fetch_add(window);
        if (begin >= readings.size() || m_stop.stop_requested())
            return;
        for (Reading& reading : readings.subspan(begin, std::min(window, readings.size() - begin))) {
            FileDescriptor file = open(reader, reading);
            if (!file)
                continue;
            Digest digest;
            const Result result = readAs(what, reader, file.get(), reading.state, Wait::No, digest);
            if (result == Result::NotInMemory)
                pending.push_back({&reading, std::move(file), 0});
            else
                settle(reading, result, digest);
        }
        for (Pending& one : pending)
            one.position = diskPosition(one.file.get());
        std::ranges::sort(pending, {}, &Pending::position);
        for (const Pending& one : pending) {
            if (what == What::Ends)
                FileReader::announceEnds(one.file.get(), one.reading->state);
            else
                FileReader::announceWhole(one.file.get(), one.reading->state);
        }
        for (const Pending& one : pending) {
            Digest digest;
            const Result result = readAs(what, reader, one.file.get(), one.reading->state, Wait::Yes, digest);
            settle(*one.reading, result, digest);
        }
        pending.clear();
    }
}

FileDescriptor FileComparison::open(const FileReader& reader, Reading& reading) const
{
    const std::string path = m_tree.pathOf(m_tree.files()[reading.file]);
    FileState state;
    FileDescriptor file = reader.open(path, state);
    const bool isKnown = std::exchange(reading.isRead, false);
    if (!file) {
        settle(reading, Result::Failed, {});
        return {};
    }
    if (isKnown ? state != reading.state : !isAsBefore(reading, state)) {
        settle(reading, Result::Changed, {});
        return {};
    }
    reading.state = state;
    return file;
}

bool FileComparison::isAsBefore(const Reading& reading, const FileState& state) const
{
    const FileTree::File& file = m_tree.files()[reading.file];
    return file.inode == state.inode && m_tree.deviceOf(file) == state.device && file.size == state.size;
}

void FileComparison::settle(Reading& reading, Result result, const Digest& digest) const
{
    reading.isRead = result == Result::Read;
    reading.digest = digest;
    if (result == Result::Failed) {
        const int error = errno;
        m_trouble(m_tree.pathOf(m_tree.files()[reading.file]),
                  error == ENOENT ? NS::LocalizedString("Duplicates", "is not there any more")
                                  : Words::cannotBeRead(error));
    } else if (result == Result::Changed) {
        m_trouble(m_tree.pathOf(m_tree.files()[reading.file]),
                  NS::LocalizedString("Duplicates", "changed while it was read"));
    }
}

} // namespace MenuExtension
