#pragma once

#include "extension/actions/transfer/Transfer.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What is told of an item: what it is and holds, and its rights, times and attributes.
using Tree = std::map<std::string, std::string>;

/// The item and all that is in it, by their paths below it; the item's own is empty. A folder's time is left out
/// where it is no part of what is looked at.
[[nodiscard]] Tree treeOf(const std::filesystem::path& item, bool withFolderTimes = true);
/// Whether files in memory can have extended attributes, which they can since Linux 6.6.
[[nodiscard]] bool haveAttributes();
/// What a file holds. Read in one piece, which is much faster.
[[nodiscard]] std::string contentOf(const std::filesystem::path& path);
/// The names in a folder, hidden ones too, sorted.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// Root may do everything; while this lives the process is another user, when it was root, and owns `folders` but for
/// what is somebody else's already.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const std::vector<std::filesystem::path>& folders);
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

/// Answers as it was told, and notes what it was asked.
class Answers : public MenuExtension::Transfers::Asked {
public:
    using Decision = MenuExtension::Transfers::Decision;
    using Resolution = MenuExtension::Transfers::Resolution;

    [[nodiscard]] Decision decide(const MenuExtension::Transfers::Conflict& conflict) override;
    [[nodiscard]] bool goesOnWithout(const MenuExtension::Transfers::Problems& problems) override;

    Decision always{Resolution::Cancel, false};
    std::function<Decision(const MenuExtension::Transfers::Conflict&)> each;
    bool goesOn = true;
    std::vector<MenuExtension::Transfers::Conflict> asked;
    std::vector<MenuExtension::Transfers::Problem> told;
};

/// A folder to move and copy from, and one to move and copy to, on the same file system or on two.
class TransferTest : public testing::Test {
protected:
    using Path = std::filesystem::path;
    using Kind = MenuExtension::Transfers::Problem::Kind;
    using Order = MenuExtension::Transfers::Order;
    using Resolution = MenuExtension::Transfers::Resolution;
    using Result = MenuExtension::Transfers::Result;
    enum class Disks { One, Two };
    enum class What { Copy, Move };

    /// In memory nothing waits for a disk. Of two file systems only the target is in memory.
    explicit TransferTest(Disks disks = Disks::One, bool isInMemory = false);
    ~TransferTest() override;

    [[nodiscard]] const Path& source() const { return m_source; }
    [[nodiscard]] const Path& target() const { return m_target; }
    [[nodiscard]] const Path& records() const { return m_records; }
    /// Where what has gone to it lies by numbers.
    [[nodiscard]] Path trash() const { return m_target.parent_path() / "trash"; }

    /// Makes a file, with the folders above it.
    static Path file(const Path& path, const std::string& content = "content");
    static Path folder(const Path& path);
    /// Whose they all are from then on, as long as it lives.
    [[nodiscard]] OrdinaryUser becomeOrdinaryUser() const { return OrdinaryUser({m_root, m_otherRoot}); }
    /// A folder with an item of every kind in it.
    static void makeEveryKind(const Path& path);

    /// Moves or copies the items with calls of its own, or with the system's. What replaced items is kept, and can be
    /// undone, until the next.
    Result run(What what, const std::vector<Path>& items, const std::optional<Path>& to = std::nullopt);
    Result undo();
    [[nodiscard]] static std::vector<Kind> kindsOf(const Result& result);

    /// What a killed process has left goes.
    void startAnew();
    /// Ends what the last one kept.
    void forget();

    /// Nothing hidden is left at the target, and no record.
    void expectNoLeftovers() const;

    Answers answers;
    MenuExtension::Transfers::Progress progress;
    MenuExtension::Transfers::SystemCalls systemCalls;
    MenuExtension::Transfers::SystemCalls* calls = &systemCalls;
    /// What has gone to the trash.
    std::vector<std::string> trashed;
    std::optional<std::string> trashTrouble;

private:
    Path m_root;
    Path m_otherRoot;
    Path m_source;
    Path m_target;
    Path m_records;
    std::unique_ptr<MenuExtension::Transfers::StagingRecord> m_record;
    std::unique_ptr<MenuExtension::Transfers::Transfer> m_transfer;
};
