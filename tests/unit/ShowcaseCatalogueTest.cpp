#include "showcase/ShowcaseCatalogue.h"
#include "showcase/InstalledApplications.h"
#include "showcase/PromotedApplications.h"
#include "showcase/PromotionOrders.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using Numbers = std::vector<int>;

class ShowcaseCatalogue : public testing::Test {
protected:
    void install(const Numbers& numbers)
    {
        platform.existingFiles.clear();
        for (const int number : numbers)
            platform.existingFiles.emplace(pathOf(number));
        checkInstalledApplications();
    }

    static std::string_view pathOf(int number)
    {
        return showcaseCatalogue.at(static_cast<std::size_t>(number - 1)).installedPath;
    }

    static Numbers installedNumbers()
    {
        Numbers numbers;
        for (int number = 1; number <= 17; ++number) {
            if (isApplicationInstalled(number))
                numbers.push_back(number);
        }
        return numbers;
    }

    static Lines titlesOf(const std::vector<ShowcaseEntry>& entries)
    {
        Lines titles;
        for (const ShowcaseEntry& entry : entries)
            titles.push_back(*valueForKey<std::string>(entry, "Title"));
        return titles;
    }
    static Lines titlesOf(const Numbers& numbers)
    {
        Lines titles;
        for (const int number : numbers)
            titles.emplace_back(showcaseCatalogue.at(static_cast<std::size_t>(number - 1)).title);
        return titles;
    }

    FakePlatform platform;
};

const Numbers everyNumber{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};

// The catalogue.

TEST_F(ShowcaseCatalogue, HasTheseApplicationsByNumber)
{
    using Application = std::array<std::string_view, 3>;
    const std::vector<Application> expected{
        {"Tessel", "/Applications/Tessel.app", "Photo & Video"},
        {"Mirelo", "/Applications/Mirelo.app", "Photo & Video"},
        {"Kelvo", "/Applications/Kelvo.app", "Photo & Video"},
        {"Dravet", "/Applications/Dravet.app", "Photo & Video"},
        {"Pallix", "/Applications/Pallix.app", "Productivity"},
        {"Ostrel", "/Applications/Ostrel.app", "Lifestyle"},
        {"Fennic", "/Applications/Fennic.app", "Utilities"},
        {"Yarrow", "/Applications/Yarrow.app", "Productivity"},
        {"Corvane", "/Applications/Corvane.app", "Productivity"},
        {"Brindle", "/Applications/Brindle.app", "Utilities"},
        {"Salvik", "/Applications/Salvik.app", "Business"},
        {"Quenby", "/Applications/Quenby.app", "Utilities"},
        {"Tavrin", "/Applications/Tavrin.app", "Utilities"},
        {"Orlet", "/Applications/Orlet.app", "Productivity"},
        {"Ferrix", "/Applications/Ferrix.app", "Utilities"},
        {"Lumet", "/Applications/Lumet.app", "Productivity"},
        {"Pendra", "/Applications/Pendra.app", "Productivity"},
    };
    std::vector<Application> applications;
    for (const ShowcaseApplication& application : showcaseCatalogue)
        applications.push_back({application.title, application.installedPath, application.category});
    EXPECT_EQ(applications, expected);
}

TEST_F(ShowcaseCatalogue, EveryApplicationHasAnImageAndAStorePageOfItsOwn)
{
    std::set<std::string_view> images;
    std::set<std::string_view> addresses;
    for (const ShowcaseApplication& application : showcaseCatalogue) {
        EXPECT_TRUE(images.insert(application.image).second) << application.image;
        EXPECT_TRUE(addresses.insert(application.storeAddress).second) << application.storeAddress;
        EXPECT_TRUE(application.storeAddress.starts_with("macappstore://")) << application.storeAddress;
        EXPECT_TRUE(NS::URL::URLWithString(application.storeAddress)) << application.storeAddress;
    }
}

TEST_F(ShowcaseCatalogue, EveryDescriptionIsOneSentence)
{
    for (const ShowcaseApplication& application : showcaseCatalogue) {
        EXPECT_EQ(application.description.find('.'), application.description.size() - 1) << application.title;
        // As much as a card has room for.
        EXPECT_LT(application.description.size(), 120U) << application.title;
    }
}

// The promotion orders.

TEST_F(ShowcaseCatalogue, EveryPromotionOrderHasEachNumberOnce)
{
    for (auto order : promotionOrders) {
        std::ranges::sort(order);
        EXPECT_EQ(Numbers(order.begin(), order.end()), everyNumber);
    }
}

TEST_F(ShowcaseCatalogue, TheNinePromotionOrdersAreThese)
{
    const Lines expected{
        "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17",
        "6, 16, 13, 15, 2, 14, 4, 8, 11, 3, 10, 7, 9, 1, 5, 12, 17",
        "10, 7, 13, 15, 17, 4, 11, 14, 8, 5, 9, 3, 6, 12, 16, 1, 2",
        "17, 8, 14, 3, 9, 16, 6, 13, 5, 15, 1, 11, 12, 4, 10, 2, 7",
        "7, 10, 5, 14, 12, 17, 9, 13, 11, 3, 15, 2, 16, 6, 8, 4, 1",
        "3, 12, 5, 4, 10, 14, 16, 9, 13, 8, 17, 1, 6, 15, 11, 7, 2",
        "7, 14, 4, 9, 12, 1, 5, 11, 16, 2, 8, 13, 3, 17, 15, 10, 6",
        "5, 11, 9, 14, 17, 16, 4, 2, 1, 12, 10, 7, 13, 3, 6, 15, 8",
        "7, 1, 12, 11, 15, 2, 4, 17, 10, 6, 3, 5, 14, 8, 13, 9, 16",
    };
    Lines orders;
    for (const auto& order : promotionOrders) {
        std::string& text = orders.emplace_back();
        for (const int number : order)
            text += (text.empty() ? "" : ", ") + std::to_string(number);
    }
    EXPECT_EQ(orders, expected);
}

TEST_F(ShowcaseCatalogue, EachNumberDrawnGivesTheOrderOfThatPlace)
{
    for (std::uint32_t drawn = 0; drawn < 9; ++drawn) {
        platform.random = drawn;
        const auto& expected = promotionOrders.at(drawn);
        EXPECT_EQ(drawPromotionOrder(), Numbers(expected.begin(), expected.end()));
    }
}

TEST_F(ShowcaseCatalogue, OneNumberBelowNineIsDrawnForAnOrder)
{
    static_cast<void>(drawPromotionOrder());

    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.arc4random_uniform(9)"}));
}

// What is installed.

TEST_F(ShowcaseCatalogue, TheCheckAsksForEachPathOnceInTheOrderOfTheNumbers)
{
    checkInstalledApplications();

    Lines expected;
    for (const ShowcaseApplication& application : showcaseCatalogue)
        expected.push_back("platform.fileExistsAtPath(\"" + std::string(application.installedPath) + "\")");
    EXPECT_EQ(platform.calls.lines(), expected);
}

TEST_F(ShowcaseCatalogue, TheCheckFindsWhatIsThere)
{
    install({1, 7, 17});

    EXPECT_EQ(installedNumbers(), (Numbers{1, 7, 17}));
}

TEST_F(ShowcaseCatalogue, EveryCheckBeginsAnew)
{
    install({3, 4});
    install({4, 5});

    EXPECT_EQ(installedNumbers(), (Numbers{4, 5}));
}

TEST_F(ShowcaseCatalogue, WhatIsFoundHoldsUntilTheNextCheck)
{
    install({3});
    platform.existingFiles.clear();

    EXPECT_TRUE(isApplicationInstalled(3));
}

TEST_F(ShowcaseCatalogue, ACopyInAnotherPlaceOrUnderAnotherNameDoesNotCount)
{
    platform.existingFiles = {"/home/user/Applications/Kelvo.app", "/Applications/kelvo.app", "/Applications/Kelvo",
                              "/Applications/Kelvo 2.app"};
    checkInstalledApplications();

    EXPECT_EQ(installedNumbers(), Numbers{});
}

// What is promoted.

TEST_F(ShowcaseCatalogue, WithNothingInstalledEveryApplicationIsPromotedInTheOrderGiven)
{
    install({});

    for (const auto& order : promotionOrders) {
        const Numbers numbers(order.begin(), order.end());
        EXPECT_EQ(titlesOf(promotedApplications(numbers)), titlesOf(numbers));
    }
}

TEST_F(ShowcaseCatalogue, WhatIsInstalledIsLeftOutAndTheRestKeepsItsOrder)
{
    install({7, 14});

    const auto& order = promotionOrders.at(6);
    EXPECT_EQ(titlesOf(promotedApplications({order.begin(), order.end()})),
              titlesOf(Numbers{4, 9, 12, 1, 5, 11, 16, 2, 8, 13, 3, 17, 15, 10, 6}));
}

TEST_F(ShowcaseCatalogue, WithEverythingInstalledNothingIsPromoted)
{
    install(everyNumber);

    EXPECT_TRUE(promotedApplications(everyNumber).empty());
}

TEST_F(ShowcaseCatalogue, NumbersThatTheCatalogueDoesNotHaveAreSkipped)
{
    install({});

    EXPECT_EQ(titlesOf(promotedApplications({0, 17, 18, -1, 1})), (Lines{"Pendra", "Tessel"}));
}

TEST_F(ShowcaseCatalogue, EveryEntryHasAllFiveKeysAndNoOther)
{
    install({});

    const auto entries = promotedApplications(everyNumber);
    ASSERT_EQ(entries.size(), showcaseCatalogue.size());
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const ShowcaseApplication& application = showcaseCatalogue.at(index);
        EXPECT_EQ(entries.at(index), (ShowcaseEntry{
                                         {"Title", std::string(application.title)},
                                         {"description", std::string(application.description)},
                                         {"icon", NS::Image(std::string(application.image))},
                                         {"apppath", std::string(application.storeAddress)},
                                         {"category", std::string(application.category)},
                                     }));
    }
}

TEST_F(ShowcaseCatalogue, AValueOfAnotherKindIsNotGiven)
{
    const ShowcaseEntry entry{{"Title", std::string("Tessel")}, {"icon", NS::Image("tile")}};

    EXPECT_EQ(*valueForKey<std::string>(entry, "Title"), "Tessel");
    EXPECT_EQ(valueForKey<NS::Image>(entry, "Title"), nullptr);
    EXPECT_EQ(valueForKey<std::string>(entry, "icon"), nullptr);
    EXPECT_EQ(valueForKey<std::string>(entry, "category"), nullptr);
}

using ShowcaseCatalogueDeathTest = ShowcaseCatalogue;

TEST_F(ShowcaseCatalogueDeathTest, AMissingImageIsFatal)
{
    install({});
    platform.missingImages.insert("showcase-kelvo");

    EXPECT_DEATH(static_cast<void>(promotedApplications({1, 3})),
                 fatalLine("the image \"showcase-kelvo\" is missing"));
}

TEST_F(ShowcaseCatalogue, TheImageOfAnInstalledApplicationIsNotNeeded)
{
    install({3});
    platform.missingImages.insert("showcase-kelvo");

    EXPECT_EQ(titlesOf(promotedApplications({3, 1})), (Lines{"Tessel"}));
}

} // namespace
