#include "Support.h"

#include "repair/RepairDomain.h"
#include "settings/Deployment.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace DefaultsTests;
using Array = NS::Value::Array;
using Dictionary = NS::Value::Dictionary;

const Dictionary broken{
    {"foldersArray", Array{"/a", "/b"}}, {"foldersArraystate", Array{0}}, {"somebodyElses", "stays"}};
const Dictionary mended{
    {"foldersArray", Array{"/a", "/b"}}, {"foldersArraystate", Array{0, 1}}, {"somebodyElses", "stays"}};
constexpr std::string_view flagsWords =
    "The list that says which folders are active does not match the list of folders. "
    "A folder without an entry of its own becomes active.\n";

class RepairProgram : public ::testing::Test {
protected:
    [[nodiscard]] std::string folder() const { return m_folder / "orvik-menu"; }
    [[nodiscard]] std::string file() const { return folder() + "/" + std::string(Deployment::suiteName) + ".plist"; }

    void store(const Dictionary& values) const
    {
        LinuxDesktop::Store store(folder());
        const auto suite = store.open(Deployment::suiteName);
        suite->replaceContents(values);
        EXPECT_TRUE(suite->finish());
    }

    [[nodiscard]] std::optional<Dictionary> stored() const
    {
        LinuxDesktop::Store store(folder());
        return store.open(Deployment::suiteName)->contents();
    }

    /// Those that a repair has kept.
    [[nodiscard]] std::vector<std::string> kept() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder()))
            if (entry.path().native().starts_with(file() + ".corrupt-"))
                found.push_back(entry.path().native());
        std::ranges::sort(found);
        return found;
    }

    [[nodiscard]] ProcessResult run(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), {ORVIK_DEFAULTS_PROGRAM, "repair"});
        return runProcess(arguments, {}, {"XDG_CONFIG_HOME=" + m_folder.path()});
    }

    TemporaryFolder m_folder;
};

TEST_F(RepairProgram, MendsTheSuiteAndSaysWhatItDid)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"suite"}, {std::string(Deployment::suiteName)}}) {
        store(broken);
        const std::string before = readFile(file());

        const auto result = run(arguments);

        ASSERT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(stored(), mended);
        ASSERT_FALSE(kept().empty());
        EXPECT_EQ(readFile(kept().back()), before);
        EXPECT_EQ(result.output,
                  std::string(flagsWords) + "The settings before that are kept as " + kept().back() + ".\n");
    }
}

TEST_F(RepairProgram, RemovesAListThatIsNone)
{
    store({{"save14", "1"}});
    EXPECT_TRUE(run({}).output.starts_with("The older list of menu items is no list. What is no list is removed.\n"));
    EXPECT_EQ(stored(), Dictionary{});
}

TEST_F(RepairProgram, LeavesSoundSettingsAlone)
{
    store(mended);
    const std::string before = readFile(file());
    const auto result = run({"suite"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "Nothing to repair.\n");
    EXPECT_EQ(readFile(file()), before);
    EXPECT_TRUE(kept().empty());
}

TEST_F(RepairProgram, LeavesOtherDomainsAloneWhereTheyAreReadable)
{
    LinuxDesktop::Store store(folder());
    const auto own = store.open(Deployment::applicationIdentifier);
    own->replaceContents(broken);
    ASSERT_TRUE(own->finish());

    EXPECT_EQ(run({"app"}).output, "Nothing to repair.\n");
    EXPECT_EQ(own->contents(), broken);
}

TEST_F(RepairProgram, EndsWithOneForADomainThatIsNotThere)
{
    for (const std::string& name : {std::string("suite"), std::string("org.example.none")}) {
        const auto result = run({name});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.errors.find("no such domain: "), std::string::npos) << result.errors;
    }
}

TEST_F(RepairProgram, EndsWithTwoForWrongUsage)
{
    EXPECT_EQ(run({"suite", "more"}).status, 2);
    EXPECT_EQ(run({"not/a/domain"}).status, 2);
}

TEST_F(RepairProgram, SaysWhatBecameOfADamagedFile)
{
    store(broken);
    writeFile(file(), "garbage");
    const auto result = run({});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(result.output.starts_with(
        "The file could not be read and was set aside. The last good copy took its place.\n" +
        std::string(flagsWords)))
        << result.output;
    EXPECT_EQ(stored(), mended);
    ASSERT_EQ(kept().size(), 2);
    EXPECT_EQ(readFile(kept().front()), "garbage");
}

TEST_F(RepairProgram, SaysThatNothingIsLeftOfADamagedFileWithoutACopy)
{
    std::filesystem::create_directories(folder());
    writeFile(file(), "garbage");
    const auto result = run({});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, "The file could not be read and was set aside. There is no last good copy, so the "
                             "settings start empty.\n");
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RepairProgram, SaysThatItCouldNotKeepTheFileAndChangesNothing)
{
    store(broken);
    const std::string before = readFile(file());
    const auto result = inChild([&] {
        obeyPermissions(m_folder.path());
        std::filesystem::permissions(folder(), std::filesystem::perms{0500});
        LinuxDesktop::Store store(folder());
        const auto repair = RepairTool::repairSuite(*store.open(Deployment::suiteName));
        std::filesystem::permissions(folder(), std::filesystem::perms{0700});
        return !repair && repair.error().find("Permission denied") != std::string::npos;
    });
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(file()), before);
}

/// Another program that writes when somebody is about to take the lock for the first time.
class WritesBeforeTheLock : public LinuxDesktop::FileOperations {
public:
    explicit WritesBeforeTheLock(std::function<void()> write) : m_write(std::move(write)) {}

    LinuxDesktop::FileDescriptor open(const std::string& path, int flags, mode_t mode) override
    {
        if (const auto write = path.ends_with(".lock") ? std::exchange(m_write, nullptr) : nullptr)
            write();
        return FileOperations::open(path, flags, mode);
    }

private:
    std::function<void()> m_write;
};

TEST_F(RepairProgram, MendsWhatAnotherProgramHasWrittenMeanwhile)
{
    const Dictionary sound{{"foldersArray", Array{"/a", "/b", "/c"}}, {"foldersArraystate", Array{0, 0, 1}}};
    const Dictionary wrongToo{{"foldersArray", Array{"/a", "/b", "/c"}}, {"foldersArraystate", Array{0, 0}}};
    for (const Dictionary& written : {sound, wrongToo}) {
        store(broken);
        LinuxDesktop::Store store(folder(), std::make_shared<WritesBeforeTheLock>([&] { this->store(written); }));

        const auto repaired = RepairTool::repairSuite(*store.open(Deployment::suiteName));

        ASSERT_TRUE(repaired) << repaired.error();
        EXPECT_EQ(stored(), sound);
        EXPECT_EQ(repaired->mends.empty(), written == sound);
        EXPECT_EQ(repaired->keptFile.empty(), written == sound);
    }
    ASSERT_EQ(kept().size(), 1);
    EXPECT_NE(readFile(kept().front()).find("/c"), std::string::npos);
}

TEST_F(RepairProgram, LeavesNothingInMemoryThatCouldNotBeStored)
{
    class NothingReplaced : public LinuxDesktop::FileOperations {
        int rename(const std::string&, const std::string&) override
        {
            errno = EIO;
            return -1;
        }
    };
    store(broken);
    LinuxDesktop::Store store(folder(), std::make_shared<NothingReplaced>());
    const auto suite = store.open(Deployment::suiteName);

    EXPECT_FALSE(RepairTool::repairSuite(*suite));

    EXPECT_EQ(suite->contents(), broken);
}

TEST_F(RepairProgram, LeavesTheOldSettingsOrTheMendedOnesWhenItIsKilled)
{
    constexpr int kills = 60;
    std::mt19937 random{20010324};
    int finished = 0;
    for (int i = 0; i < kills; ++i) {
        store(broken);
        const std::string before = readFile(file());
        const pid_t child = ::fork();
        if (child == 0) {
            LinuxDesktop::Store store(folder());
            static_cast<void>(RepairTool::repairSuite(*store.open(Deployment::suiteName)));
            ::_exit(0);
        }
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<std::int64_t>(0, 20'000)(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);

        const auto found = stored();
        ASSERT_TRUE(found == broken || found == mended) << i;
        if (found == mended) {
            ++finished;
            // The old ones are there still.
            ASSERT_FALSE(kept().empty());
            ASSERT_EQ(readFile(kept().back()), before);
        }
        ASSERT_LE(kept().size(), 5);
    }
    EXPECT_GT(finished, 0);
}

} // namespace
