#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using LinuxDesktop::FileChooser;
using namespace Qt::StringLiterals;

TEST(LargeFolder, OfFiftyThousandFilesOpensWellUnderASecondAndFollowsChanges)
{
    const TemporaryFolder folder;
    for (int i = 0; i < 50'000; ++i)
        folder.file("document number " + std::to_string(i) + ".txt");
    LinuxDesktop::ModalState modal;
    FileChooser chooser(modal);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path("document number 40000.txt")));

    QElapsedTimer elapsed;
    elapsed.start();
    runChooser(chooser, [&](const ShownChooser& shown) {
        shown.list().viewport()->repaint();
        testing::Test::RecordProperty("openingMilliseconds", std::to_string(elapsed.elapsed()));
        EXPECT_LT(elapsed.elapsed(), 1000);
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
