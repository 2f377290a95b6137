#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

namespace {

/// The processor time of this process, which is not another's to spend.
double secondsWorked()
{
    timespec time = {};
    EXPECT_EQ(::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time), 0);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

TEST(LargeFolder, OfFiftyThousandFilesOpensAtTheItemAndFollowsChanges)
{
    // In memory where there is room for files, since a busy disk takes long to make so many.
    const std::filesystem::path memory = "/dev/shm";
    const TemporaryFolder folder(std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path());
    for (int i = 0; i < 50'000; ++i)
        folder.file("document number " + std::to_string(i) + ".txt");
    LinuxDesktop::ModalState modal;
    FileChooser chooser(modal);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("document number 40000.txt")));

    const double before = secondsWorked();
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.list().viewport()->repaint();
        const double opening = secondsWorked() - before;
        testing::Test::RecordProperty("secondsToOpen", std::to_string(opening));
        EXPECT_EQ(shown.list().model()->rowCount(), 50'000);
        const QModelIndex row = shown.list().currentIndex();
        EXPECT_EQ(row.data().toString(), u"document number 40000.txt"_s);
        EXPECT_EQ(row.row(), 40'000);
        EXPECT_TRUE(shown.list().viewport()->rect().contains(shown.list().visualRect(row)));

        folder.file("a new one");
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown.list().model()->rowCount() == 50'001; }));
        EXPECT_EQ(shown.selected(), u"document number 40000.txt"_s);
        shown.cancel();
    });
}
