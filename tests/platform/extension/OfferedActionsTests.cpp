#include "extension/companion/NeedsWatch.h"
#include "extension/companion/OfferedActions.h"

#include "support/Files.h"
#include "support/ProgramPath.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>
#include <systemd/sd-event.h>

namespace MenuExtension {

namespace {

namespace fs = std::filesystem;

/// Programs of actions, and a folder in which what they need may be.
class OfferedActionsTest : public testing::Test {
protected:
    OfferedActionsTest()
    {
        fs::create_directory(programs);
        fs::create_directory(system);
    }

    static void makeProgram(const fs::path& path)
    {
        Files::write(path, "#!/bin/sh\n");
        fs::permissions(path, fs::perms::owner_all);
    }

    [[nodiscard]] std::vector<std::string> offered() const
    {
        std::vector<std::string> identifiers;
        for (const MenuAction& action : offeredActions(items, programs).actions)
            identifiers.push_back(action.identifier);
        return identifiers;
    }

    QTemporaryDir temporary;
    const fs::path root{temporary.path().toStdString()};
    const fs::path programs = root / "programs";
    const fs::path system = root / "system";
    const ProgramPath path{"relative:" + system.string() + ":/nonexistent"};
    const std::vector<MenuItem> items{{"Resize Photos", true}, {"Open Terminal", true}, {"Resize Photos", true}};
};

using Identifiers = std::vector<std::string>;

TEST_F(OfferedActionsTest, AreThoseWhoseProgramIsThere)
{
    EXPECT_EQ(offered(), Identifiers{});
    makeProgram(programs / "open-terminal");
    EXPECT_EQ(offered(), Identifiers{"open-terminal"});
    makeProgram(programs / "resize-photos");
    EXPECT_EQ(offered(), (Identifiers{"resize-photos", "open-terminal"}));
}

TEST_F(OfferedActionsTest, LackWhatIsNotInPath)
{
    makeProgram(programs / "resize-photos");
    Files::write(programs / "resize-photos.needs", "program resizer resizer-package\n");
    EXPECT_EQ(offered(), Identifiers{});
    const ActionNeed need{ActionNeed::Kind::Program, "resizer", "resizer-package"};
    EXPECT_EQ(offeredActions(items, programs).needs.front(), need);

    Files::write(system / "resizer", "not executable");
    EXPECT_EQ(offered(), Identifiers{});
    makeProgram(system / "resizer");
    EXPECT_EQ(offered(), Identifiers{"resize-photos"});
    EXPECT_EQ(offeredActions(items, programs).needs.front(), need) << "it may go again";
}

TEST_F(OfferedActionsTest, LackALibraryThatIsNotThere)
{
    makeProgram(programs / "resize-photos");
    const fs::path library = system / "libresize.so.1";
    Files::write(programs / "resize-photos.needs", "library " + library.string() + " libresize1\n");
    EXPECT_EQ(offered(), Identifiers{});
    Files::write(library, "");
    EXPECT_EQ(offered(), Identifiers{"resize-photos"});
}

TEST_F(OfferedActionsTest, AnActionThatIsOffNeedsNothing)
{
    makeProgram(programs / "resize-photos");
    Files::write(programs / "resize-photos.needs", "program resizer resizer-package\n");
    EXPECT_TRUE(offeredActions({{"Resize Photos", false}}, programs).needs.empty());
}

TEST(ActionNeeds, LinesThatSayNothingAreLeftOut)
{
    EXPECT_TRUE(needsFrom("").empty());
    EXPECT_TRUE(needsFrom("program\n\nlibrary /a\nfont a b\n\xff\n").empty());
    EXPECT_EQ(needsFrom("library /a b\nrubbish\nprogram c d e").size(), 2U);
}

TEST_F(OfferedActionsTest, WhatComesAndGoesIsToldOf)
{
    sd_event* loop = nullptr;
    ASSERT_GE(sd_event_new(&loop), 0);
    {
        int told = 0;
        NeedsWatch watch(*loop, [&] { ++told; });
        const auto settle = [&] {
            while (sd_event_run(loop, 100'000) > 0) {
            }
        };
        watch.follow({{ActionNeed::Kind::Program, "resizer", "p"},
                      {ActionNeed::Kind::Library, (root / "lib/libresize.so.1").string(), "p"}});
        Files::write(system / "other", "");
        settle();
        EXPECT_EQ(told, 0);
        // As a package comes: under another name, its rights last.
        Files::write(system / "resizer.new", "");
        fs::rename(system / "resizer.new", system / "resizer");
        settle();
        EXPECT_EQ(told, 0);
        fs::permissions(system / "resizer", fs::perms::owner_all);
        settle();
        EXPECT_EQ(told, 1);
        fs::rename(system / "resizer", root / "resizer");
        settle();
        EXPECT_EQ(told, 2);
        makeProgram(system / "resizer");
        settle();
        EXPECT_EQ(told, 3);
        fs::remove(system / "resizer");
        settle();
        EXPECT_EQ(told, 4);

        watch.follow({});
        makeProgram(system / "resizer");
        settle();
        EXPECT_EQ(told, 4);
    }
    sd_event_unref(loop);
}

} // namespace

} // namespace MenuExtension
