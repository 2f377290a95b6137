#include "RecordedDisk.h"
#include "Support.h"
#include "platform/linux/store/PropertyList.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

// Whatever a power cut leaves of what was not flushed, what the store has promised is there.

namespace {

using namespace DefaultsTests;
using LinuxDesktop::Domain;
using LinuxDesktop::Store;
namespace fs = std::filesystem;

std::string keyOf(int number)
{
    return "key " + std::to_string(number);
}

/// How many of the keys, which are written one after the other, are there.
int countOf(const std::optional<NS::Value::Dictionary>& values)
{
    int count = 0;
    while (values && values->contains(keyOf(count)))
        ++count;
    return count;
}

int countIn(const std::optional<std::string>& bytes)
{
    const auto root = LinuxDesktop::PropertyList::parse(bytes.value_or(""));
    return root && root->dictionary() ? countOf(*root->dictionary()) : 0;
}

class StorePowerCut : public SettingsTest, public ::testing::Test {
protected:
    StorePowerCut() : SettingsTest(Place::Memory), m_disk(std::make_shared<RecordedDisk>(root())) {}

    void write(Domain& domain)
    {
        // Of different lengths, so that no two files are the same.
        domain.setObject_forKey(std::string(static_cast<std::size_t>(100 * m_written), 'x'), keyOf(m_written));
        ASSERT_TRUE(domain.synchronize() || domain.synchronize());
        m_disk->note(m_written++);
    }

    /// The settings file is damaged, long after it was written.
    void damage() const
    {
        m_disk->damage(file(), garbage);
        age(file());
    }

    /// What every cut leaves must do.
    void checkEveryCut() const
    {
        int cuts = 0;
        m_disk->forEachCut([&](const DiskAfterCut& cut) {
            ++cuts;
            SCOPED_TRACE(describe(cut));
            const int copied = countIn(cut.sure(copyName()));
            if (cut.isDamaged) {
                EXPECT_TRUE(std::ranges::any_of(cut.tree, [](const auto& entry) { return entry.second == garbage; }))
                    << "the damaged file has gone";
                // What was on disk as a copy before the damage can be had back, and what was promised after it.
                checkReading(cut.tree, std::max(copied, cut.notedSinceDamage + 1), Expected::Anything);
            } else {
                checkReading(cut.tree, cut.noted + 1, Expected::NoDamage);
                // A disk that fails at the same time damages the settings too.
                Tree damaged = cut.tree;
                if (const auto settings = damaged.find(settingsName()); settings != damaged.end()) {
                    settings->second = garbage;
                    checkReading(damaged, copied, Expected::Anything);
                }
            }
        });
        // Fewer would mean that not all was recorded: each write makes a file, fills it and renames it.
        EXPECT_GT(cuts, 4 * m_written);
    }

    std::shared_ptr<RecordedDisk> m_disk;

private:
    enum class Expected { NoDamage, Anything };
    static constexpr const char* garbage = "garbage";

    static void age(const std::string& path)
    {
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::seconds(10));
    }

    [[nodiscard]] std::string settingsName() const { return file().substr(root().size()); }
    [[nodiscard]] std::string copyName() const { return settingsName() + ".bak"; }

    static std::string describe(const DiskAfterCut& cut)
    {
        std::string text = "after promise " + std::to_string(cut.noted) + ":";
        for (const auto& [name, bytes] : cut.tree)
            text += " " + name +
                    (bytes ? " (" + std::to_string(countIn(bytes)) + " keys in " + std::to_string(bytes->size()) +
                                 " bytes)"
                           : "");
        return text;
    }

    static void checkReading(const Tree& tree, int atLeast, Expected expected)
    {
        const SettingsTest after(Place::Memory);
        for (const auto& [name, bytes] : tree) {
            const std::string path = after.root() + name;
            if (!bytes) {
                fs::create_directory(path);
                continue;
            }
            writeFile(path, *bytes);
            age(path);
        }
        testing::internal::CaptureStderr();
        {
            Store store(after.folder());
            const auto domain = store.open(domainName);
            EXPECT_TRUE(domain);
            EXPECT_GE(countOf(domain->contents()), atLeast);
            // And on it goes.
            domain->setObject_forKey("new", "new");
            EXPECT_TRUE(domain->synchronize());
            EXPECT_GE(countOf(domain->contents()), atLeast);
        }
        const std::string lines = testing::internal::GetCapturedStderr();
        EXPECT_TRUE(expected == Expected::Anything || lines.empty()) << lines;
        EXPECT_EQ(after.stored("new"), NS::Value("new"));
        EXPECT_TRUE(after.files(".tmp-").empty());
    }

    int m_written = 0;
};

TEST_F(StorePowerCut, LosesNothingOfWritesThatAreCopiedOneByOne)
{
    const auto domain = writingAtOnce(m_disk);
    for (int i = 0; i < 4; ++i)
        write(*domain);
    checkEveryCut();
}

TEST_F(StorePowerCut, LosesNothingOfWritesInARow)
{
    {
        Store store(folder(), m_disk);
        const auto domain = store.open(domainName);
        for (int i = 0; i < 4; ++i)
            write(*domain);
    }
    checkEveryCut();
}

TEST_F(StorePowerCut, LosesNothingOfWritesBySeveralProgramsInTurn)
{
    const auto one = writingAtOnce(m_disk);
    const auto other = writingAtOnce(m_disk);
    for (int i = 0; i < 4; ++i)
        write(i % 2 == 0 ? *one : *other);
    checkEveryCut();
}

TEST_F(StorePowerCut, LosesNothingThatIsPromisedAfterAFlushHasFailed)
{
    const auto domain = writingAtOnce(m_disk);
    write(*domain);
    testing::internal::CaptureStderr();
    for (int flush = 1; flush <= 4; ++flush) {
        m_disk->failFlush(flush);
        write(*domain);
    }
    testing::internal::GetCapturedStderr();
    checkEveryCut();
}

TEST_F(StorePowerCut, LosesNeitherTheCopyNorWhatIsWrittenAfterARepair)
{
    {
        const auto domain = writingAtOnce(m_disk);
        for (int i = 0; i < 3; ++i)
            write(*domain);
    }
    damage();
    testing::internal::CaptureStderr();
    {
        const auto domain = writingAtOnce(m_disk);
        for (int i = 0; i < 2; ++i)
            write(*domain);
    }
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    checkEveryCut();
}

TEST_F(StorePowerCut, LosesNothingWhereTheProgramThatWroteRepairsBeforeItHasCopied)
{
    {
        Store store(folder(), m_disk);
        const auto domain = store.open(domainName);
        for (int i = 0; i < 2; ++i)
            write(*domain);
        damage();
        testing::internal::CaptureStderr();
        write(*domain);
    }
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    checkEveryCut();
}

} // namespace
