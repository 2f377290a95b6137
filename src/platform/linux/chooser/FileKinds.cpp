#include "platform/linux/chooser/FileKinds.h"

#include "platform/linux/system/FileDescriptor.h"

#include <cerrno>
#include <condition_variable>
#include <fcntl.h>
#include <linux/openat2.h>
#include <mutex>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace LinuxDesktop {

namespace {

FileKind kindOfMode(mode_t mode)
{
    return S_ISDIR(mode) ? FileKind::Folder : FileKind::Other;
}

} // namespace

/// Between the one who asks and the thread that looks. The thread has a share, so that it can be left behind.
struct FileKinds::Shared {
    explicit Shared(LookUp function) : lookUp(std::move(function)) {}

    const LookUp lookUp;
    std::mutex mutex;
    std::condition_variable changed;
    /// From the question until its answer is there.
    std::optional<std::string> asked;
    std::optional<FileKind> answer;
    bool ended = false;

    void answerQuestions()
    {
        std::unique_lock lock(mutex);
        while (true) {
            changed.wait(lock, [this] { return ended || asked; });
            if (ended)
                return;
            const std::string path = *asked;
            lock.unlock();
            const FileKind found = lookUp(path);
            lock.lock();
            answer = found;
            asked.reset();
            changed.notify_all();
        }
    }
};

FileKind lookUpFileKind(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return FileKind::Missing;
    return kindOfMode(status.st_mode);
}

std::optional<FileKind> recallFileKind(const std::string& path)
{
    open_how how = {};
    how.flags = O_PATH | O_CLOEXEC;
    how.resolve = RESOLVE_CACHED;
    const FileDescriptor file(static_cast<int>(::syscall(SYS_openat2, AT_FDCWD, path.c_str(), &how, sizeof how)));
    if (!file)
        return errno == ENOENT ? std::optional(FileKind::Missing) : std::nullopt;
    struct statx status = {};
    if (::statx(file.get(), "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_TYPE, &status) != 0)
        return std::nullopt;
    return kindOfMode(status.stx_mode);
}

FileKinds::FileKinds() : FileKinds(recallFileKind, lookUpFileKind, std::chrono::milliseconds(100)) {}

FileKinds::FileKinds(Recall recall, LookUp lookUp, std::chrono::milliseconds patience)
    : m_recall(std::move(recall)), m_patience(patience), m_shared(std::make_shared<Shared>(std::move(lookUp)))
{}

FileKinds::~FileKinds()
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->ended = true;
    m_shared->changed.notify_all();
}

std::optional<FileKind> FileKinds::knownKindOf(const std::string& path)
{
    if (const auto known = m_recall(path))
        return known;
    std::unique_lock lock(m_shared->mutex);
    if (m_shared->asked)
        return std::nullopt;
    if (!m_started) {
        std::thread([shared = m_shared] { shared->answerQuestions(); }).detach();
        m_started = true;
    }
    m_shared->asked = path;
    m_shared->answer.reset();
    m_shared->changed.notify_all();
    m_shared->changed.wait_for(lock, m_patience, [this] { return m_shared->answer.has_value(); });
    return m_shared->answer;
}

} // namespace LinuxDesktop
