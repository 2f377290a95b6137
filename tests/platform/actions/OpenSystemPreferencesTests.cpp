#include "ActionTest.h"

#include <array>

namespace {

class OpenSystemPreferences : public ActionTest {
protected:
    Answer open(const std::string& desktop)
    {
        setEnvironment("XDG_CURRENT_DESKTOP", desktop);
        return run("open-system-preferences", {listed()}, {.background = true});
    }
    void makeAll()
    {
        for (const auto& [desktop, program] : programs)
            makeProgram(program);
    }

    static constexpr std::array<std::pair<const char*, const char*>, 6> programs{{
        {"GNOME", "gnome-control-center"},
        {"KDE", "systemsettings"},
        {"X-Cinnamon", "cinnamon-settings"},
        {"MATE", "mate-control-center"},
        {"XFCE", "xfce4-settings-manager"},
        {"LXQt", "lxqt-config"},
    }};
};

TEST_F(OpenSystemPreferences, EachDesktopOpensItsOwn)
{
    makeAll();
    for (const auto& [desktop, program] : programs) {
        SCOPED_TRACE(desktop);
        EXPECT_EQ(open(desktop), done);
        EXPECT_EQ(startOf(program).token, "token-1");
        for (const auto& [other, otherProgram] : programs)
            EXPECT_FALSE(wasStarted(otherProgram)) << otherProgram;
    }
}

TEST_F(OpenSystemPreferences, ADesktopBuiltOnAnotherOpensThatOnes)
{
    makeAll();
    EXPECT_EQ(open("pop:gnome"), done);
    startOf("gnome-control-center");
}

TEST_F(OpenSystemPreferences, OnAnyOtherDesktopTheFirstInstalledOpens)
{
    makeProgram("xfce4-settings-manager");
    makeProgram("lxqt-config");
    for (const char* desktop : {"", "sway", "GNOME", ":::"}) {
        EXPECT_EQ(open(desktop), done);
        startOf("xfce4-settings-manager");
    }
    EXPECT_FALSE(wasStarted("lxqt-config"));
}

TEST_F(OpenSystemPreferences, OneThatRefusesIsNotTheLastThatIsTried)
{
    makeProgram("gnome-control-center", 1);
    makeProgram("mate-control-center");
    EXPECT_EQ(open("GNOME"), done);
    startOf("mate-control-center");
}

TEST_F(OpenSystemPreferences, WithoutAnyThePersonIsToldWhatToDo)
{
    const Answer answer = open("GNOME");
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("Install"), std::string::npos);
}

TEST_F(OpenSystemPreferences, ItAppliesToAnySelection)
{
    makeProgram("lxqt-config");
    EXPECT_EQ(run("open-system-preferences", {file("a"), folder("b")}), done);
    startOf("lxqt-config");
}

} // namespace
