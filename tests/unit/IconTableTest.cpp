#include "menu/IconTable.h"

#include "settings/MenuCatalogue.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdlib>
#include <latch>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

class IconTableTest : public testing::Test {
protected:
    FakePlatform platform;
};

TEST_F(IconTableTest, HasEighteenTitles)
{
    EXPECT_EQ(IconTable().size(), 18U);
}

TEST_F(IconTableTest, GivesEveryActionOfTheCatalogueItsImage)
{
    const IconTable table;
    for (const CatalogueRow& action : menuCatalogue)
        EXPECT_EQ(table.imageForTitle(action.title), NS::Image(std::string(action.image))) << action.title;
}

TEST_F(IconTableTest, GivesHidingAndUnhidingTheImageOfBoth)
{
    const IconTable table;
    for (const char* title : {"Hide / Unhide item", "Hide item", "Unhide item"})
        EXPECT_EQ(table.imageForTitle(title), NS::Image("12")) << title;
}

class ATitleOfNoAction : public IconTableTest, public testing::WithParamInterface<const char*> {};

TEST_P(ATitleOfNoAction, HasNoImage)
{
    EXPECT_EQ(IconTable().imageForTitle(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(EachKind, ATitleOfNoAction,
                         testing::Values("", "open terminal", "Open Terminal ", "OPEN TERMINAL", "Move To A Folder",
                                         "hide item", "Hide", "1", "View or Edit EXIF Data"));

TEST_F(IconTableTest, LoadsEveryImageWhenItIsBuiltAndNoneWhenItIsAsked)
{
    const IconTable table;
    EXPECT_EQ(platform.calls.startingWith("platform.imageNamed").size(), 18U);
    platform.calls.clear();

    static_cast<void>(table.imageForTitle("Open Terminal"));
    static_cast<void>(table.imageForTitle("nothing"));

    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(IconTableTest, AsksForNoImageThatBelongsToNoAction)
{
    platform.missingImages = {"2", "3", "8"};
    EXPECT_EQ(IconTable().size(), 18U);
}

TEST_F(IconTableTest, TheProcessHasOneThatIsBuiltOnce)
{
    const IconTable& first = iconTable();
    platform.calls.clear();

    EXPECT_EQ(&iconTable(), &first);
    EXPECT_TRUE(platform.calls.lines().empty());
}

/// A platform that loads an image only once a second thread loads one too, or none has come for a while.
class SlowImages : public FakePlatform {
public:
    std::optional<NS::Image> imageNamed(std::string_view name) override
    {
        std::unique_lock lock(m_mutex);
        if (++loaded > 1)
            m_second.notify_all();
        else
            m_second.wait_for(lock, 200ms, [this] { return loaded > 1; });
        return NS::Image(std::string(name));
    }

    int loaded = 0;

private:
    std::mutex m_mutex;
    std::condition_variable m_second;
};

/// Asks for the process's table from several threads at a time. Answers how many images were loaded.
int imagesLoadedByManyThreads()
{
    constexpr std::size_t count = 4;
    SlowImages platform;
    std::latch start(count);
    {
        std::vector<std::jthread> threads;
        threads.reserve(count);
        while (threads.size() < count) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                static_cast<void>(iconTable());
            });
        }
    }
    return platform.loaded;
}

TEST(IconTableDeathTest, AFirstUseByManyThreadsBuildsItOnce)
{
    // In a process of its own, which has no table yet.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(imagesLoadedByManyThreads()), testing::ExitedWithCode(18), "");
}

class AMissingImageDeathTest : public IconTableTest, public testing::WithParamInterface<const char*> {};

TEST_P(AMissingImageDeathTest, IsFatalAndNamed)
{
    platform.missingImages = {GetParam()};
    EXPECT_DEATH(IconTable(), fatalLine("the image \"" + std::string(GetParam()) + "\" is missing"));
}

INSTANTIATE_TEST_SUITE_P(Each, AMissingImageDeathTest,
                         testing::Values("1", "system-preferences-icon", "4", "5", "6", "7", "9", "10", "11", "12",
                                         "13", "14", "15", "16", "NSActionTemplate", "NSAddTemplate"),
                         [](const auto& tested) {
                             std::string name = tested.param;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
