#include "platform/linux/chooser/FolderModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace LinuxDesktop;

namespace {

FileEntry file(std::string name, std::int64_t size = 0, std::time_t modified = 0)
{
    return {.name = std::move(name), .size = size, .modified = modified};
}

FileEntry folder(std::string name)
{
    return {.name = std::move(name), .kind = FileEntry::Kind::Folder};
}

std::vector<std::string> namesOf(const FolderModel& model)
{
    std::vector<std::string> names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.push_back(model.entry(row).name);
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(FolderModel, SortsNumbersByValueAndLettersWithoutCaseAndFoldersFirst)
{
    FolderModel model;
    model.setEntries({file("item 10"), file("Item 9"), file("beta"), file("Alpha"), folder("zoo"), folder("Ark")});
    EXPECT_EQ(namesOf(model), (Names{"Ark", "zoo", "Alpha", "beta", "Item 9", "item 10"}));
}

TEST(FolderModel, FoldersStayFirstInDescendingOrder)
{
    FolderModel model;
    model.setEntries({file("a"), file("b"), folder("c"), folder("d")});
    model.sort(FolderModel::Name, Qt::DescendingOrder);
    EXPECT_EQ(namesOf(model), (Names{"d", "c", "b", "a"}));
}

TEST(FolderModel, SortsBySizeAndByDate)
{
    FolderModel model;
    model.setEntries({file("a", 3, 1), file("b", 1, 3), file("c", 2, 2)});
    model.sort(FolderModel::Size);
    EXPECT_EQ(namesOf(model), (Names{"b", "c", "a"}));
    model.sort(FolderModel::Modified);
    EXPECT_EQ(namesOf(model), (Names{"a", "c", "b"}));
}

TEST(FolderModel, SaysSizesAsPeopleDo)
{
    FolderModel model;
    model.setEntries({file("a", 0), file("b", 1), file("c", 2), file("d", 1'500'000)});
    QStringList sizes;
    for (int row = 0; row < model.rowCount(); ++row)
        sizes.append(model.index(row, FolderModel::Size).data().toString());
    EXPECT_EQ(sizes, (QStringList{"0 bytes", "1 byte", "2 bytes", "1.5 MB"}));
}

TEST(FolderModel, NamesThatReadAlikeKeepOneOrder)
{
    FolderModel model;
    model.setEntries({file("x\xff"), file("x\xfe"), file("X\xfe")});
    const Names first = namesOf(model);
    model.setEntries({file("X\xfe"), file("x\xfe"), file("x\xff"), file("y")});
    EXPECT_EQ(namesOf(model), (Names{first[0], first[1], first[2], "y"}));
}

TEST(FolderModel, SortingKeepsWhatPointsAtARow)
{
    FolderModel model;
    model.setEntries({file("a", 3), file("b", 1), file("c", 2)});
    const QPersistentModelIndex a = model.index(0, 0);
    model.sort(FolderModel::Size);
    EXPECT_EQ(a.row(), 2);
    EXPECT_EQ(model.entry(a.row()).name, "a");
}

TEST(FolderModel, TheSameItemsInAnotherOrderAreNoChange)
{
    FolderModel model;
    model.setEntries({file("b"), file("a")});
    const QSignalSpy resets(&model, &FolderModel::modelReset);
    model.setEntries({file("a"), file("b")});
    EXPECT_EQ(resets.size(), 0);
    model.setEntries({file("a"), file("b", 1)});
    EXPECT_EQ(resets.size(), 1);
}

TEST(FolderModel, KeepsToTheRulesOfModels)
{
    FolderModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setEntries({file("a", 2), folder("b"), {.name = "c", .kind = FileEntry::Kind::BrokenLink, .isLink = true}});
    model.sort(FolderModel::Size, Qt::DescendingOrder);
    model.setEntries({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(FolderModel, ATooltipShowsMarkupAsItsCharacters)
{
    FolderModel model;
    model.setEntries({file("<b>x & y</b>")});
    EXPECT_EQ(model.index(0, 0).data(Qt::ToolTipRole).toString(), "<qt>&lt;b&gt;x &amp; y&lt;/b&gt;</qt>");
}
