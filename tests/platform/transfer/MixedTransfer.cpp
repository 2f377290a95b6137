#include "MixedTransfer.h"

#include "support/Files.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

/// For texts that can be looked at.
std::string shortened(const std::string& content)
{
    constexpr std::size_t longest = 30;
    return content.size() <= longest ? content : std::to_string(std::hash<std::string>()(content));
}

/// Of the files that people see.
std::map<std::string, std::string> contentsIn(const fs::path& folder)
{
    std::map<std::string, std::string> contents;
    for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::end(entry); ++entry) {
        if (entry->path().filename().native().starts_with(".orvik-menu-"))
            entry.disable_recursion_pending();
        else if (entry->is_symlink())
            contents.emplace(entry->path().native().substr(folder.native().size() + 1),
                             "-> " + fs::read_symlink(entry->path()).native());
        else if (entry->is_regular_file())
            contents.emplace(entry->path().native().substr(folder.native().size() + 1),
                             shortened(contentOf(entry->path())));
    }
    return contents;
}

bool has(const std::map<std::string, std::string>& contents, const std::string& content)
{
    return std::ranges::any_of(contents, [&](const auto& entry) { return entry.second == content; });
}

} // namespace

void MixedTransfer::prepare()
{
    forget();
    for (const Path& place : {source(), target()}) {
        for (const auto& entry : fs::directory_iterator(place))
            fs::remove_all(entry.path());
    }
    fs::remove_all(records());
    trashed.clear();
    answers.told.clear();
    progress.cancelled = false;
    file(source() / "tree/file", "content of a file");
    static const std::string noise = Files::noise(300'000);
    file(source() / "tree/below/large", noise);
    file(source() / "tree/below/several", "content of two names");
    fs::create_hard_link(source() / "tree/below/several", source() / "tree/other");
    fs::create_symlink("file", source() / "tree/link");
    fs::resize_file(file(source() / "tree/sparse", "begin"), 100'000);
    folder(source() / "tree/empty");
    file(source() / "single", "new single");
    file(source() / "album/both", "new both");
    file(source() / "album/new", "new in the album");
    file(target() / "single", "old single");
    file(target() / "album/both", "old both");
    file(target() / "album/old", "old in the album");
    m_new = contentsIn(source());
    m_old = contentsIn(target());
    answers.each = [](const MenuExtension::Transfers::Conflict& conflict) {
        return Answers::Decision{conflict.canMerge ? Resolution::Merge : Resolution::Replace, true};
    };
}

TransferTest::Result MixedTransfer::runMixed(What what)
{
    return run(what, {source() / "tree", source() / "single", source() / "album"});
}

void MixedTransfer::expectNothingLost() const
{
    const auto atSource = contentsIn(source());
    const auto atTarget = contentsIn(target());
    for (const auto& [name, content] : m_new) {
        const auto isAt = [&](const auto& contents) {
            const auto found = contents.find(name);
            return found != contents.end() && found->second == content;
        };
        EXPECT_TRUE(isAt(atSource) || isAt(atTarget)) << name << " is whole nowhere";
    }
    for (const auto& [name, content] : m_old) {
        // It may have been replaced by what is whole.
        const bool isReplaced =
            m_new.contains(name) && atTarget.contains(name) && atTarget.at(name) == m_new.at(name);
        EXPECT_TRUE(isReplaced || has(atTarget, content) || has(atSource, content)) << name << " has gone";
    }
    for (const auto& contents : {atSource, atTarget}) {
        for (const auto& [name, content] : contents)
            EXPECT_TRUE(has(m_new, content) || has(m_old, content)) << name << " is not whole";
    }
}

void MixedTransfer::expectAllIsBack() const
{
    EXPECT_EQ(contentsIn(source()), m_new);
    EXPECT_EQ(contentsIn(target()), m_old);
}
