#include "extensions/LackingActions.h"

#include "support/Files.h"

#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>

namespace ExtensionsTool {

namespace {

namespace fs = std::filesystem;

TEST(LackingActions, SayWhatIsNotInstalled)
{
    const QTemporaryDir temporary;
    const fs::path programs = temporary.path().toStdString();
    const fs::path library = programs / "libresize.so.1";
    const auto makeProgram = [&](const char* name) {
        Files::write(programs / name, "#!/bin/sh\n");
        fs::permissions(programs / name, fs::perms::owner_all);
    };
    Files::write(programs / "resize-photos.needs", "library " + library.string() + " libresize1\n");
    // A package may leave what an action needs without the action.
    EXPECT_TRUE(lackingActions(programs).empty());

    makeProgram("resize-photos");
    makeProgram("open-terminal");
    const auto lacking = lackingActions(programs);
    ASSERT_EQ(lacking.size(), 1U);
    EXPECT_EQ(lacking.front().title, "Resize Photos");
    EXPECT_EQ(inWords(lacking.front()), "Needs the package libresize1, which is not installed.");

    Files::write(library, "");
    EXPECT_TRUE(lackingActions(programs).empty());
}

TEST(LackingActions, SeveralPackagesAreListed)
{
    using MenuExtension::ActionNeed;
    EXPECT_EQ(inWords({"A", {{ActionNeed::Kind::Program, "a", "b"}, {ActionNeed::Kind::Program, "c", "d"}}}),
              "Needs the packages b, d, which are not installed.");
}

} // namespace

} // namespace ExtensionsTool
