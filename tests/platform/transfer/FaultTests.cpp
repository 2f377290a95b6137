#include "MixedTransfer.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

// Every call that a transfer makes fails once, and from then on, with every error that it can give; and the process
// is killed at every call.

namespace {

using namespace MenuExtension::Transfers;
using LinuxDesktop::FileDescriptor;

enum class Call {
    Open,
    Create,
    Status,
    FileSystem,
    NextEntry,
    Read,
    Write,
    CopyRange,
    Clone,
    Seek,
    SetLength,
    MakeFolder,
    MakeSymbolicLink,
    ReadSymbolicLink,
    Link,
    Rename,
    Remove,
    SetOwner,
    SetMode,
    SetTimes,
    ListAttributes,
    Flush,
    FlushFileSystem,
};

std::vector<int> errorsOf(Call call)
{
    switch (call) {
    case Call::Open:
        return {EMFILE, EACCES, EIO, ENOENT};
    case Call::Create:
        return {EMFILE, EACCES, ENOSPC, EROFS, EEXIST};
    case Call::Status:
    case Call::FileSystem:
    case Call::NextEntry:
    case Call::Read:
    case Call::ReadSymbolicLink:
        return {EIO, EACCES};
    case Call::Write:
        return {ENOSPC, EIO, EDQUOT};
    case Call::CopyRange:
        return {EXDEV, ENOSPC, EIO};
    case Call::Clone:
        return {EIO, ENOSPC};
    case Call::Seek:
        return {EINVAL, EIO};
    case Call::SetLength:
    case Call::MakeFolder:
    case Call::MakeSymbolicLink:
        return {ENOSPC, EACCES, EROFS};
    case Call::Link:
        return {EMLINK, EIO, ENOSPC, EXDEV};
    case Call::Rename:
        return {EINVAL, EXDEV, EIO, ENOSPC, EACCES, EBUSY};
    case Call::Remove:
        return {EACCES, EIO, EBUSY};
    case Call::SetOwner:
    case Call::SetMode:
    case Call::SetTimes:
    case Call::ListAttributes:
        return {EPERM, EIO, ENOTSUP};
    case Call::Flush:
    case Call::FlushFileSystem:
        return {EIO, ENOSPC, EDQUOT};
    }
    return {};
}

struct Fault {
    std::size_t at;
    Call call;
    int error;
    /// Every later call of the kind fails too.
    bool lasts;
};

/// The process ends where the error is none.
constexpr int kill = 0;

std::ostream& operator<<(std::ostream& stream, const Fault& fault)
{
    return stream << "call " << fault.at << " (" << static_cast<int>(fault.call)
                  << "): " << strerrorname_np(fault.error) << (fault.lasts ? ", and from then on" : ", once");
}

/// Where a file has holes is not always seen alike, so a run may make some calls more or fewer than another.
class FaultyCalls : public SystemCalls {
public:
    ~FaultyCalls() override
    {
        // It came to its end before it was to be killed.
        if (fault && fault->error == kill && made.size() <= fault->at)
            ::_exit(0);
    }

    std::vector<Call> made;
    std::optional<Fault> fault;

    FileDescriptor open(int folder, const char* name, int flags, mode_t mode) override
    {
        if (fails((flags & O_CREAT) != 0 ? Call::Create : Call::Open))
            return {};
        return SystemCalls::open(folder, name, flags, mode);
    }
    int status(int folder, const char* name, struct stat& status) override
    {
        return fails(Call::Status) ? -1 : SystemCalls::status(folder, name, status);
    }
    int fileSystem(int file, struct statfs& status) override
    {
        return fails(Call::FileSystem) ? -1 : SystemCalls::fileSystem(file, status);
    }
    const dirent* nextEntry(DIR* folder) override
    {
        return fails(Call::NextEntry) ? nullptr : SystemCalls::nextEntry(folder);
    }
    ssize_t read(int file, void* bytes, std::size_t count, off_t at) override
    {
        return fails(Call::Read) ? -1 : SystemCalls::read(file, bytes, count, at);
    }
    ssize_t write(int file, const void* bytes, std::size_t count, off_t at) override
    {
        return fails(Call::Write) ? -1 : SystemCalls::write(file, bytes, count, at);
    }
    ssize_t copyRange(int from, int to, off_t at, std::size_t count) override
    {
        return fails(Call::CopyRange) ? -1 : SystemCalls::copyRange(from, to, at, count);
    }
    int clone(int from, int to) override { return fails(Call::Clone) ? -1 : SystemCalls::clone(from, to); }
    off_t seek(int file, off_t at, int whence) override
    {
        return fails(Call::Seek) ? -1 : SystemCalls::seek(file, at, whence);
    }
    int setLength(int file, off_t length) override
    {
        return fails(Call::SetLength) ? -1 : SystemCalls::setLength(file, length);
    }
    int makeFolder(int folder, const char* name, mode_t mode) override
    {
        return fails(Call::MakeFolder) ? -1 : SystemCalls::makeFolder(folder, name, mode);
    }
    int makeSymbolicLink(const char* destination, int folder, const char* name) override
    {
        return fails(Call::MakeSymbolicLink) ? -1 : SystemCalls::makeSymbolicLink(destination, folder, name);
    }
    ssize_t readSymbolicLink(int folder, const char* name, char* destination, std::size_t size) override
    {
        return fails(Call::ReadSymbolicLink) ? -1 : SystemCalls::readSymbolicLink(folder, name, destination, size);
    }
    int link(int from, const char* name, int to, const char* newName) override
    {
        return fails(Call::Link) ? -1 : SystemCalls::link(from, name, to, newName);
    }
    int rename(int from, const char* name, int to, const char* newName, unsigned flags) override
    {
        return fails(Call::Rename) ? -1 : SystemCalls::rename(from, name, to, newName, flags);
    }
    int remove(int folder, const char* name, int flags) override
    {
        return fails(Call::Remove) ? -1 : SystemCalls::remove(folder, name, flags);
    }
    int setOwner(int folder, const char* name, uid_t user, gid_t group) override
    {
        return fails(Call::SetOwner) ? -1 : SystemCalls::setOwner(folder, name, user, group);
    }
    int setMode(int folder, const char* name, mode_t mode) override
    {
        return fails(Call::SetMode) ? -1 : SystemCalls::setMode(folder, name, mode);
    }
    int setTimes(int folder, const char* name, const std::array<timespec, 2>& times) override
    {
        return fails(Call::SetTimes) ? -1 : SystemCalls::setTimes(folder, name, times);
    }
    ssize_t listAttributes(int file, char* names, std::size_t size) override
    {
        return fails(Call::ListAttributes) ? -1 : SystemCalls::listAttributes(file, names, size);
    }
    int flush(int file) override { return fails(Call::Flush) ? -1 : SystemCalls::flush(file); }
    int flushFileSystem(int file) override
    {
        return fails(Call::FlushFileSystem) ? -1 : SystemCalls::flushFileSystem(file);
    }

private:
    bool fails(Call call)
    {
        const std::size_t number = made.size();
        made.push_back(call);
        if (!fault || number < fault->at || (fault->error != kill && call != fault->call) ||
            (m_failed && !fault->lasts))
            return false;
        if (fault->error == kill)
            ::_exit(0);
        m_failed = true;
        errno = fault->error;
        return true;
    }

    bool m_failed = false;
};

class TransferFaults : public MixedTransfer, public testing::WithParamInterface<std::tuple<bool, bool>> {
protected:
    TransferFaults() : MixedTransfer(std::get<1>(GetParam()) ? Disks::Two : Disks::One, true) {}

    [[nodiscard]] static What what() { return std::get<0>(GetParam()) ? What::Move : What::Copy; }

    /// In a process of its own, which a fault kills.
    template<class Work>
    void expectKilled(Work work)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            work();
            ::_exit(1);
        }
        int status = -1;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }

    /// The calls that are made when nothing goes wrong.
    std::vector<Call> callsMade()
    {
        FaultyCalls faulty;
        prepare();
        calls = &faulty;
        const Result result = runMixed(what());
        EXPECT_EQ(kindsOf(result), std::vector<Kind>{});
        EXPECT_EQ(result.done, 3U);
        forget();
        calls = &systemCalls;
        return faulty.made;
    }
};

INSTANTIATE_TEST_SUITE_P(Everywhere, TransferFaults, testing::Combine(testing::Bool(), testing::Bool()),
                         [](const auto& run) {
                             return std::string(std::get<0>(run.param) ? "InAMove" : "InACopy") +
                                    (std::get<1>(run.param) ? "BetweenFileSystems" : "WithinAFileSystem");
                         });

TEST_P(TransferFaults, LoseNothingAndCanBeUndone)
{
    const auto made = callsMade();
    ASSERT_FALSE(HasFailure());
    for (std::size_t at = 0; at < made.size(); ++at) {
        for (const int error : errorsOf(made[at])) {
            for (const bool lasts : {false, true}) {
                const Fault fault{at, made[at], error, lasts};
                SCOPED_TRACE(testing::PrintToString(fault));
                prepare();
                FaultyCalls faulty;
                faulty.fault = fault;
                calls = &faulty;
                const Result result = runMixed(what());
                expectNothingLost();
                faulty.fault.reset();
                const Result undone = undo();
                // What always failed may have kept the old item from its place: it is somewhere, and whole.
                if (lasts)
                    expectNothingLost();
                else
                    expectAllIsBack();
                EXPECT_TRUE(result.done == 3 || !result.problems.empty() || !answers.told.empty());
                forget();
                calls = &systemCalls;
                startAnew();
                expectNoLeftovers();
                if (HasFailure())
                    return;
            }
        }
    }
}

TEST_P(TransferFaults, OfAKillAtEveryCallLeaveEachFileWhole)
{
    const auto made = callsMade();
    for (std::size_t at = 0; at < made.size(); ++at) {
        const Fault fault{at, made[at], kill, false};
        SCOPED_TRACE(testing::PrintToString(fault));
        prepare();
        expectKilled([&] {
            FaultyCalls faulty;
            faulty.fault = fault;
            calls = &faulty;
            static_cast<void>(runMixed(what()));
            forget();
        });
        expectNothingLost();
        startAnew();
        expectNothingLost();
        expectNoLeftovers();
        if (HasFailure())
            return;
    }
}

TEST_P(TransferFaults, OfAKillAtEveryCallOfTheUndoLeaveEachFileWhole)
{
    // A copy goes to the trash, which is none of these calls.
    if (what() == What::Copy)
        return;
    FaultyCalls counted;
    prepare();
    calls = &counted;
    static_cast<void>(runMixed(what()));
    const std::size_t begin = counted.made.size();
    static_cast<void>(undo());
    forget();
    calls = &systemCalls;
    for (std::size_t at = begin; at < counted.made.size(); ++at) {
        const Fault fault{at, counted.made[at], kill, false};
        SCOPED_TRACE(testing::PrintToString(fault));
        prepare();
        expectKilled([&] {
            FaultyCalls faulty;
            faulty.fault = fault;
            calls = &faulty;
            static_cast<void>(runMixed(what()));
            static_cast<void>(undo());
            forget();
        });
        expectNothingLost();
        startAnew();
        expectNothingLost();
        expectNoLeftovers();
        if (HasFailure())
            return;
    }
}

} // namespace
