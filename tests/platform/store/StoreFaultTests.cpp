#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <tuple>
#include <vector>

// Every call that a write or a repair makes fails once, and from then on, with every error that it can give.

namespace {

using namespace DefaultsTests;
using LinuxDesktop::Domain;
using LinuxDesktop::FileDescriptor;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

enum class Call {
    OpenForReading,
    OpenLock,
    Create,
    OpenFolder,
    Write,
    SyncFile,
    SyncFolder,
    Rename,
    Link,
    Unlink,
    MakeFolder,
};

/// Not errors of a call's own: a write that stops half way, and a file that opens and cannot be read.
constexpr int shortWrite = -1;
constexpr int unreadable = -2;

std::vector<int> errorsOf(Call call)
{
    switch (call) {
    case Call::OpenForReading:
        return {EMFILE, ENFILE, EACCES, EIO, unreadable};
    case Call::OpenLock:
        return {EMFILE, EACCES, EROFS, ENOSPC, ENOENT};
    case Call::Create:
        return {EMFILE, EACCES, EROFS, ENOSPC, EDQUOT, ENOENT, EEXIST};
    case Call::OpenFolder:
        return {EMFILE, EACCES, ENOENT, EIO};
    case Call::Write:
        return {ENOSPC, EIO, EDQUOT, shortWrite};
    case Call::SyncFile:
    case Call::SyncFolder:
        return {EIO, ENOSPC, EDQUOT};
    case Call::Rename:
        return {EXDEV, EACCES, ENOSPC, EROFS, EIO};
    case Call::Link:
        return {EPERM, EMLINK, EXDEV, EACCES, ENOSPC, EIO, EEXIST};
    case Call::Unlink:
        return {EACCES, EROFS, EIO};
    case Call::MakeFolder:
        return {EACCES, EROFS, ENOSPC, EDQUOT};
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

std::ostream& operator<<(std::ostream& stream, const Fault& fault)
{
    constexpr std::array names{"open for reading", "open lock", "create", "open folder", "write",      "sync file",
                               "sync folder",      "rename",    "link",   "unlink",      "make folder"};
    stream << "call " << fault.at << ", " << names.at(static_cast<std::size_t>(fault.call)) << ": ";
    if (fault.error == shortWrite)
        stream << "short";
    else if (fault.error == unreadable)
        stream << "unreadable";
    else
        stream << strerrorname_np(fault.error);
    return stream << (fault.lasts ? ", and from then on" : ", once");
}

/// What the file system can do.
enum class Features { All, NoLinks };

class FaultyOperations : public LinuxDesktop::FileOperations {
public:
    FaultyOperations(Features features, std::optional<Fault> fault, std::function<void()> afterEachCall)
        : m_features(features), m_fault(fault), m_afterEachCall(std::move(afterEachCall))
    {}

    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }
    void mend() { m_fault.reset(); }

    FileDescriptor open(const std::string& path, int flags, mode_t mode) override
    {
        if (const int error = fails(kindOf(flags)); error == unreadable)
            flags = O_WRONLY;
        else if (error != 0)
            return {};
        return done(FileOperations::open(path, flags, mode));
    }
    ssize_t write(int descriptor, const void* bytes, std::size_t count) override
    {
        if (const int error = fails(Call::Write); error == shortWrite) {
            // A disk that is full from here on gives what fits, and then nothing.
            const bool isFirst = !std::exchange(m_wasShort, true);
            if (m_fault->lasts && !isFirst) {
                errno = ENOSPC;
                return -1;
            }
            count /= 2;
        } else if (error != 0) {
            return -1;
        }
        return done(FileOperations::write(descriptor, bytes, count));
    }
    int syncFile(int descriptor) override
    {
        return fails(Call::SyncFile) ? -1 : done(FileOperations::syncFile(descriptor));
    }
    int syncFolder(int descriptor) override
    {
        return fails(Call::SyncFolder) ? -1 : done(FileOperations::syncFolder(descriptor));
    }
    int rename(const std::string& from, const std::string& to) override
    {
        return fails(Call::Rename) ? -1 : done(FileOperations::rename(from, to));
    }
    int link(const std::string& existing, const std::string& name) override
    {
        if (fails(Call::Link))
            return -1;
        if (m_features == Features::NoLinks) {
            errno = EPERM;
            return -1;
        }
        return done(FileOperations::link(existing, name));
    }
    int unlink(const std::string& path) override
    {
        return fails(Call::Unlink) ? -1 : done(FileOperations::unlink(path));
    }
    int makeFolder(const std::string& path, mode_t mode) override
    {
        return fails(Call::MakeFolder) ? -1 : done(FileOperations::makeFolder(path, mode));
    }

private:
    static Call kindOf(int flags)
    {
        if ((flags & O_DIRECTORY) != 0)
            return Call::OpenFolder;
        if ((flags & O_EXCL) != 0)
            return Call::Create;
        return (flags & O_CREAT) != 0 ? Call::OpenLock : Call::OpenForReading;
    }

    /// The error, as errno too, or 0.
    int fails(Call call)
    {
        const std::size_t number = m_calls.size();
        m_calls.push_back(call);
        if (!m_fault || call != m_fault->call || number < m_fault->at || (number > m_fault->at && !m_fault->lasts))
            return 0;
        return errno = m_fault->error;
    }
    template<class Result>
    Result done(Result result)
    {
        const int error = errno;
        m_afterEachCall();
        errno = error;
        return result;
    }

    Features m_features;
    std::optional<Fault> m_fault;
    std::function<void()> m_afterEachCall;
    std::vector<Call> m_calls;
    bool m_wasShort = false;
};

/// What is there before.
enum class Start { NoFolder, Settings, SettingsBehindALink, DamageWithACopy, DamageBehindALink, DamageWithoutACopy };

/// Whether the program has read before it writes. A reader repairs, and so does a writer.
enum class First { Reads, Writes };

class StoreFaults : public ::testing::TestWithParam<std::tuple<Start, First, Features>> {
protected:
    static constexpr std::string_view garbage = "garbage that somebody may want to look at";
    inline static const NS::Value good = std::string(3000, 'g');

    [[nodiscard]] static Start start() { return std::get<Start>(GetParam()); }
    [[nodiscard]] static bool startsDamaged() { return start() >= Start::DamageWithACopy; }
    [[nodiscard]] static bool startsGood()
    {
        return start() != Start::NoFolder && start() != Start::DamageWithoutACopy;
    }

    /// Gives the calls that were made.
    std::vector<Call> run(const std::optional<Fault>& fault)
    {
        const SettingsTest settings(Place::Memory);
        prepare(settings);
        const auto operations = std::make_shared<FaultyOperations>(std::get<Features>(GetParam()), fault,
                                                                   [&] { checkNothingIsLost(settings); });
        const auto domain = settings.writingAtOnce(operations);
        std::string complaints;
        if (std::get<First>(GetParam()) == First::Reads)
            complaints += whatIsSaid([&] { checkReading(*domain, fault); });
        std::vector<std::string> acknowledged;
        for (const char* key : {"first", "second"}) {
            complaints += whatIsSaid([&] {
                domain->setObject_forKey(key, key);
                if (domain->synchronize())
                    acknowledged.emplace_back(key);
                EXPECT_EQ(domain->objectForKey(key), NS::Value(key));
                checkReading(*domain, fault);
            });
            checkNewReader(settings, acknowledged);
        }
        EXPECT_TRUE(acknowledged.size() == 2 || !complaints.empty());

        auto calls = operations->calls();
        operations->mend();
        whatIsSaid([&] {
            domain->setObject_forKey("third", "third");
            EXPECT_TRUE(domain->synchronize());
        });
        checkNewReader(settings, {"first", "second", "third"});
        EXPECT_EQ(temporaries(settings), 0);
        EXPECT_EQ(readFile(settings.file()), readFile(settings.file(".bak")));
        return calls;
    }

private:
    static void prepare(const SettingsTest& settings)
    {
        if (start() == Start::NoFolder)
            return;
        settings.store({{"good", good}});
        if (start() == Start::SettingsBehindALink || start() == Start::DamageBehindALink) {
            fs::rename(settings.file(), settings.root() + "/target");
            fs::create_symlink("../target", settings.file());
        }
        if (startsDamaged()) {
            writeFile(settings.file(), garbage);
            age(settings.file());
        }
        if (start() == Start::DamageWithoutACopy)
            fs::remove(settings.file(".bak"));
    }

    /// On standard error.
    static std::string whatIsSaid(const std::function<void()>& action)
    {
        testing::internal::CaptureStderr();
        action();
        return testing::internal::GetCapturedStderr();
    }

    /// So that nobody waits for the rest of it.
    static void age(const std::string& file)
    {
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::seconds(10));
    }

    static bool isGood(const std::string& file)
    {
        const auto root = LinuxDesktop::PropertyList::parse(readFile(file));
        if (!root || !root->dictionary())
            return false;
        const auto found = root->dictionary()->find("good");
        return found != root->dictionary()->end() && found->second == good;
    }

    /// At every moment.
    static void checkNothingIsLost(const SettingsTest& settings)
    {
        if (startsDamaged()) {
            auto names = settings.files(".corrupt-");
            names.push_back(fs::path(settings.file()).filename());
            EXPECT_TRUE(std::ranges::any_of(names, [&](const std::string& name) {
                return readFile(settings.folder() + "/" + name) == garbage;
            })) << "the damaged file has gone";
        }
        if (startsGood()) {
            EXPECT_TRUE(isGood(settings.file()) ||
                        (readFile(settings.file()) == garbage && isGood(settings.file(".bak"))))
                << "neither the settings nor a copy is whole";
        }
    }

    /// What cannot be read cannot be given; everything else can.
    static void checkReading(Domain& domain, const std::optional<Fault>& fault)
    {
        const auto found = domain.objectForKey("good");
        if (startsGood() && (found || !fault || fault->call != Call::OpenForReading)) {
            EXPECT_EQ(found, good);
        } else {
            EXPECT_FALSE(found);
        }
    }

    /// It looks at a copy, since it would mend what it finds.
    static void checkNewReader(const SettingsTest& settings, const std::vector<std::string>& acknowledged)
    {
        const SettingsTest copy(Place::Memory);
        fs::copy(settings.root(), copy.root(),
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks |
                     fs::copy_options::overwrite_existing);
        if (fs::exists(copy.file()))
            age(copy.file());
        whatIsSaid([&] {
            Store store(copy.folder());
            const auto domain = store.open(SettingsTest::domainName);
            ASSERT_TRUE(domain);
            if (startsGood()) {
                EXPECT_EQ(domain->objectForKey("good"), good);
            }
            for (const std::string& key : acknowledged)
                EXPECT_EQ(domain->objectForKey(key), NS::Value(key));
        });
    }

    static std::ptrdiff_t temporaries(const SettingsTest& settings)
    {
        return std::ranges::count_if(fs::recursive_directory_iterator(settings.root()), [](const auto& entry) {
            return entry.path().filename().native().find(".tmp-") != std::string::npos;
        });
    }
};

TEST_P(StoreFaults, LoseNothing)
{
    const auto calls = run({});
    ASSERT_FALSE(HasFailure());
    for (std::size_t i = 0; i < calls.size(); ++i) {
        for (const int error : errorsOf(calls[i])) {
            for (const bool lasts : {false, true}) {
                // No folder has every name in it.
                if (calls[i] == Call::Link && error == EEXIST && lasts)
                    continue;
                const Fault fault{i, calls[i], error, lasts};
                SCOPED_TRACE(testing::PrintToString(fault));
                run(fault);
            }
        }
    }
}

std::string nameOf(const ::testing::TestParamInfo<StoreFaults::ParamType>& run)
{
    constexpr std::array names{"WithNoFolder",
                               "InSettings",
                               "InSettingsBehindALink",
                               "InDamagedSettings",
                               "InDamagedSettingsBehindALink",
                               "InDamagedSettingsWithoutACopy"};
    return std::string(names.at(static_cast<std::size_t>(std::get<Start>(run.param)))) +
           (std::get<First>(run.param) == First::Reads ? "ThatWereRead" : "");
}

constexpr std::array starts{Start::NoFolder,        Start::Settings,          Start::SettingsBehindALink,
                            Start::DamageWithACopy, Start::DamageBehindALink, Start::DamageWithoutACopy};

INSTANTIATE_TEST_SUITE_P(Everywhere, StoreFaults,
                         ::testing::Combine(::testing::ValuesIn(starts),
                                            ::testing::Values(First::Reads, First::Writes),
                                            ::testing::Values(Features::All)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(WithoutHardLinks, StoreFaults,
                         ::testing::Combine(::testing::ValuesIn(starts), ::testing::Values(First::Writes),
                                            ::testing::Values(Features::NoLinks)),
                         nameOf);

} // namespace
