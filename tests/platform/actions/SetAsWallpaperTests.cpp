#include "ActionTest.h"
#include "BusStandIns.h"
#include "platform/URL.h"
#include "support/Files.h"

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Manner = WallpaperPortalStandIn::Manner;

const std::string content = "\x89PNG\r\n\x1a\n and more\0\xff"s;

class SetAsWallpaper : public ActionTest {
protected:
    Answer set(const Path& path) { return run("set-as-wallpaper", {path}); }
    static std::string addressOf(const Path& path)
    {
        return '\'' + NS::URL::fileURLWithPath(path.native()).absoluteString() + '\'';
    }
};

TEST_F(SetAsWallpaper, ThePortalGetsThePictureItself)
{
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        WallpaperPortalStandIn portal(busAddress(), Manner::Responds);
        EXPECT_EQ(set(file(name, content + name)), done);
        ASSERT_TRUE(portal.picture());
        EXPECT_EQ(portal.picture()->toStdString(), content + name);
    }
}

TEST_F(SetAsWallpaper, APortalThatChoosesWhereItAnswersIsHeard)
{
    WallpaperPortalStandIn portal(busAddress(), Manner::RespondsElsewhere);
    EXPECT_EQ(set(file("a", content)), done);
}

TEST_F(SetAsWallpaper, WhatTheUserCancelsIsNoFailureAndIsNotDoneAnotherWay)
{
    setEnvironment("XDG_CURRENT_DESKTOP", "GNOME");
    makeProgram("gsettings");
    const WallpaperPortalStandIn portal(busAddress(), Manner::Responds, 1);
    EXPECT_EQ(set(file("a", content)), done);
    EXPECT_FALSE(wasStarted("gsettings"));
}

TEST_F(SetAsWallpaper, WhatThePortalRefusesIsToldInWords)
{
    const Answer refused{'1', "The desktop did not take \"a\" as its wallpaper."};
    const Path picture = file("a", content);
    {
        const WallpaperPortalStandIn portal(busAddress(), Manner::Responds, 2);
        EXPECT_EQ(set(picture), refused);
    }
    {
        const WallpaperPortalStandIn portal(busAddress(), Manner::Refuses);
        EXPECT_EQ(set(picture), refused);
    }
    {
        const WallpaperPortalStandIn portal(busAddress(), Manner::Vanishes);
        EXPECT_EQ(set(picture), refused);
    }
}

TEST_F(SetAsWallpaper, WithoutAPortalTheDesktopsOwnSettingIsChanged)
{
    makeProgram("gsettings");
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        const Path picture = file(name, content);
        setEnvironment("XDG_CURRENT_DESKTOP", "GNOME");
        EXPECT_EQ(set(picture), done);
        EXPECT_EQ(startOf("gsettings").arguments, (std::vector<std::string>{"set", "org.gnome.desktop.background",
                                                                            "picture-uri-dark", addressOf(picture)}));
        setEnvironment("XDG_CURRENT_DESKTOP", "X-Cinnamon");
        EXPECT_EQ(set(picture), done);
        EXPECT_EQ(startOf("gsettings").arguments, (std::vector<std::string>{"set", "org.cinnamon.desktop.background",
                                                                            "picture-uri", addressOf(picture)}));
    }
}

TEST_F(SetAsWallpaper, ASettingThatTakesAPathGetsItInQuotes)
{
    makeProgram("gsettings");
    setEnvironment("XDG_CURRENT_DESKTOP", "MATE");
    EXPECT_EQ(set(file("it's \\ mine", content)), done);
    EXPECT_EQ(startOf("gsettings").arguments.back(), '\'' + listed().native() + "/it\\'s \\\\ mine'");
}

TEST_F(SetAsWallpaper, EveryScreenOfXfceGetsThePicture)
{
    setEnvironment("XDG_CURRENT_DESKTOP", "XFCE");
    makeProgram("xfconf-query", 0, "/backdrop/screen0/monitor0/workspace0/last-image\n/desktop-icons/style\n");
    EXPECT_EQ(set(file("a", content)), done);
    EXPECT_EQ(startOf("xfconf-query").arguments,
              (std::vector<std::string>{"-c", "xfce4-desktop", "-p",
                                        "/backdrop/screen0/monitor0/workspace0/last-image", "-s", listed() / "a"}));
}

TEST_F(SetAsWallpaper, PlasmaAndLxqtAreAskedByTheirPrograms)
{
    makeProgram("plasma-apply-wallpaperimage");
    makeProgram("pcmanfm-qt");
    setEnvironment("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_EQ(set(file("a", content)), done);
    EXPECT_EQ(startOf("plasma-apply-wallpaperimage").arguments, std::vector<std::string>{listed() / "a"});
    setEnvironment("XDG_CURRENT_DESKTOP", "LXQt");
    EXPECT_EQ(set(listed() / "a"), done);
    EXPECT_EQ(startOf("pcmanfm-qt").arguments, (std::vector<std::string>{"--set-wallpaper", listed() / "a"}));
}

TEST_F(SetAsWallpaper, OnADesktopThatIsNotKnownThePersonIsTold)
{
    const Answer answer = set(file("a", content));
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("\"a\""), std::string::npos);
}

TEST_F(SetAsWallpaper, ItAppliesToOnePictureByWhatItHolds)
{
    WallpaperPortalStandIn portal(busAddress(), Manner::Responds);
    EXPECT_EQ(set(file("text.png", "text")).kind, '2');
    EXPECT_EQ(set(file("empty.png")).kind, '2');
    EXPECT_EQ(set(folder("folder.png")).kind, '2');
    EXPECT_EQ(run("set-as-wallpaper", {file("a", content), file("b", content)}).kind, '2');
    EXPECT_EQ(run("set-as-wallpaper", {listed()}, {.background = true}).kind, '2');
    Files::write(outside() / "picture", content);
    fs::create_symlink(outside() / "picture", listed() / "link.png");
    EXPECT_EQ(set(listed() / "link.png").kind, '2');
    EXPECT_FALSE(portal.picture());
}

TEST_F(SetAsWallpaper, APipeIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo((listed() / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(set(listed() / "pipe").kind, '2');
}

} // namespace
