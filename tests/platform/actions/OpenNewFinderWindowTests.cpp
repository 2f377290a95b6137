#include "ActionTest.h"
#include "BusStandIns.h"
#include "platform/URL.h"

namespace {

namespace fs = std::filesystem;

class OpenNewFinderWindow : public ActionTest {
protected:
    Answer open(const Path& path, bool background = false, const std::string& caller = {})
    {
        return run("open-new-finder-window", {path}, {.background = background, .caller = caller});
    }
    static QStringList shows(const Path& folder)
    {
        const std::string address = NS::URL::fileURLWithPath(folder.native()).absoluteString();
        return {QStringLiteral("ShowFolders %1 token-1").arg(QString::fromStdString(address))};
    }
};

TEST_F(OpenNewFinderWindow, TheFileManagerThatAsksShowsTheFolder)
{
    FileManagerStandIn asking(busAddress());
    FileManagerStandIn other(busAddress());
    other.takeName();
    EXPECT_EQ(open(folder("docs"), false, asking.name()), done);
    EXPECT_EQ(asking.takeCalls(), shows(listed() / "docs"));
    EXPECT_EQ(open(file("notes.txt"), false, asking.name()), done);
    EXPECT_EQ(asking.takeCalls(), shows(listed()));
    EXPECT_EQ(open(listed(), true, asking.name()), done);
    EXPECT_EQ(asking.takeCalls(), shows(listed()));
    EXPECT_EQ(other.takeCalls(), QStringList());
}

TEST_F(OpenNewFinderWindow, WhereThatShowsNothingTheDesktopsOwnDoes)
{
    const OtherProgram script(busAddress());
    FileManagerStandIn manager(busAddress());
    manager.takeName();
    for (const std::string& caller : {script.name(), std::string(":1.99999"), std::string("no name"),
                                      std::string("org.freedesktop.DBus"), std::string()}) {
        SCOPED_TRACE(caller);
        EXPECT_EQ(open(folder("docs"), false, caller), done);
        EXPECT_EQ(manager.takeCalls(), shows(listed() / "docs"));
    }
}

TEST_F(OpenNewFinderWindow, AProgramThatOnlyWaitsForItsAnswerIsNotWaitedFor)
{
    SilentProgram script(busAddress());
    FileManagerStandIn manager(busAddress());
    manager.takeName();
    EXPECT_EQ(open(folder("docs"), false, script.name()), done);
    EXPECT_EQ(manager.takeCalls(), shows(listed() / "docs"));
    // It would do that later.
    EXPECT_EQ(script.takeCalls(), std::vector<std::string>{});
}

TEST_F(OpenNewFinderWindow, NoNameOfAFolderIsTakenForSomethingElse)
{
    FileManagerStandIn manager(busAddress());
    manager.takeName();
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        EXPECT_EQ(open(folder(name)), done);
        EXPECT_EQ(manager.takeCalls(), shows(listed() / name));
    }
}

TEST_F(OpenNewFinderWindow, WithoutAFileManagerOnTheBusTheFolderIsOpenedAsAnyOther)
{
    makeProgram("xdg-open");
    EXPECT_EQ(open(folder("100% #1\n")), done);
    EXPECT_EQ(startOf("xdg-open").arguments,
              std::vector<std::string>{"file://" + listed().native() + "/100%25%20%231%0A"});
}

TEST_F(OpenNewFinderWindow, WithoutAnyThePersonIsTold)
{
    const Answer answer = open(folder("docs"));
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"docs\""), std::string::npos);
}

TEST_F(OpenNewFinderWindow, ALinkOutOfTheListedFolderIsNotShown)
{
    FileManagerStandIn manager(busAddress());
    manager.takeName();
    fs::create_directory_symlink("../outside", listed() / "docs");
    EXPECT_EQ(open(listed() / "docs").kind, '1');
    EXPECT_EQ(open(listed() / "docs", true).kind, '1');
    EXPECT_EQ(manager.takeCalls(), QStringList());
}

TEST_F(OpenNewFinderWindow, ItDoesNotApplyToSeveralItems)
{
    EXPECT_EQ(run("open-new-finder-window", {file("a"), file("b")}).kind, '2');
}

} // namespace
