#include "ActionTest.h"

namespace {

class ConfigureOrvikMenuSettings : public ActionTest {};

TEST_F(ConfigureOrvikMenuSettings, ThePanelThatIsInstalledBesideIsStarted)
{
    makeProgram("orvik-menu");
    makePanel();
    EXPECT_EQ(run("configure-orvik-menu-settings", {file("a"), file("b")}), done);
    const Start start = startOfPanel();
    EXPECT_EQ(start.arguments, std::vector<std::string>{});
    EXPECT_EQ(start.token, "token-1");
    EXPECT_FALSE(wasStarted("orvik-menu"));
}

TEST_F(ConfigureOrvikMenuSettings, WhereThereIsNoneBesideTheOneInPathIs)
{
    makeProgram("orvik-menu");
    EXPECT_EQ(run("configure-orvik-menu-settings", {listed()}, {.background = true}), done);
    startOf("orvik-menu");
}

TEST_F(ConfigureOrvikMenuSettings, WithoutAnyThePersonIsTold)
{
    const Answer answer = run("configure-orvik-menu-settings", {listed()}, {.background = true});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words, "");
}

} // namespace
