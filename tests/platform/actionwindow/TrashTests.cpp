#include "extension/actions/files/Trash.h"

#include "support/Files.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>

namespace MenuExtension {

namespace {

namespace fs = std::filesystem;

/// With a trash of its own, on the same file system.
class TrashTest : public testing::Test {
protected:
    TrashTest()
    {
        qputenv("XDG_DATA_HOME", (root / "data").c_str());
        fs::create_directory(root / "data");
    }
    // The toolkit leaves names that are no text.
    ~TrashTest() override { fs::remove_all(root); }

    QTemporaryDir temporary;
    const fs::path root{temporary.path().toStdString()};
    const fs::path trashed = root / "data" / "Trash" / "files";
};

TEST_F(TrashTest, TakesAFileUnderItsName)
{
    const std::string name = "a\n'%$()\xff";
    Files::write(root / name, "words");
    EXPECT_EQ(moveToTrash(root / name), std::nullopt);
    EXPECT_FALSE(fs::exists(root / name));
    EXPECT_EQ(Files::read(trashed / name), "words");
}

TEST_F(TrashTest, TakesALinkAndNotWhatItLeadsTo)
{
    Files::write(root / "file", "words");
    fs::create_symlink(root / "file", root / "link");
    EXPECT_EQ(moveToTrash(root / "link"), std::nullopt);
    EXPECT_FALSE(fs::is_symlink(root / "link"));
    EXPECT_TRUE(fs::exists(root / "file"));
}

TEST_F(TrashTest, SaysWhatWentWrong)
{
    const auto words = moveToTrash(root / "nothing");
    ASSERT_TRUE(words);
    EXPECT_NE(words->find("nothing"), std::string::npos) << *words;
}

} // namespace

} // namespace MenuExtension
