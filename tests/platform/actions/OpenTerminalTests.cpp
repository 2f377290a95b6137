#include "ActionTest.h"

namespace {

namespace fs = std::filesystem;

class OpenTerminal : public ActionTest {
protected:
    Answer open(const Path& path, bool background = false)
    {
        return run("open-terminal", {path}, {.background = background});
    }
};

TEST_F(OpenTerminal, ATerminalOpensInTheFolder)
{
    makeProgram("xdg-terminal-exec");
    EXPECT_EQ(open(folder("docs")), done);
    const Start start = startOf("xdg-terminal-exec");
    EXPECT_EQ(start.folder, listed() / "docs");
    EXPECT_EQ(start.arguments, std::vector<std::string>{});
    EXPECT_EQ(start.token, "token-1");
}

TEST_F(OpenTerminal, OfAFileTheTerminalOpensInItsFolder)
{
    makeProgram("xdg-terminal-exec");
    EXPECT_EQ(open(file("notes.txt")), done);
    EXPECT_EQ(startOf("xdg-terminal-exec").folder, listed());
    fs::create_symlink("nowhere", listed() / "broken");
    EXPECT_EQ(open(listed() / "broken"), done);
    EXPECT_EQ(startOf("xdg-terminal-exec").folder, listed());
}

TEST_F(OpenTerminal, OfABackgroundTheTerminalOpensThere)
{
    makeProgram("xdg-terminal-exec");
    EXPECT_EQ(open(listed(), true), done);
    EXPECT_EQ(startOf("xdg-terminal-exec").folder, listed());
}

TEST_F(OpenTerminal, NoNameOfAFolderIsTakenForSomethingElse)
{
    makeProgram("xdg-terminal-exec");
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        EXPECT_EQ(open(folder(name)), done);
        EXPECT_EQ(startOf("xdg-terminal-exec").folder, listed() / name);
    }
}

TEST_F(OpenTerminal, WhereOneTerminalDoesNotStartTheNextOneIsTried)
{
    makeProgram("xdg-terminal-exec", 1);
    makeProgram("x-terminal-emulator");
    EXPECT_EQ(open(listed(), true), done);
    EXPECT_EQ(startOf("x-terminal-emulator").folder, listed());
}

TEST_F(OpenTerminal, TheDesktopsOwnSettingIsAsked)
{
    setEnvironment("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    makeProgram("gsettings", 0, "'\"'\"'my-terminal'\"'\"'\n");
    makeProgram("my-terminal");
    EXPECT_EQ(open(folder("docs")), done);
    EXPECT_EQ(startOf("gsettings").arguments,
              (std::vector<std::string>{"get", "org.gnome.desktop.default-applications.terminal", "exec"}));
    EXPECT_EQ(startOf("my-terminal").folder, listed() / "docs");
}

TEST_F(OpenTerminal, WhatTheDesktopSaysIsNoProgramWhereItIsNoText)
{
    setEnvironment("XDG_CURRENT_DESKTOP", "MATE");
    makeProgram("gsettings", 1, "");
    makeProgram("mate-terminal");
    EXPECT_EQ(open(listed(), true), done);
    EXPECT_EQ(startOf("mate-terminal").folder, listed());
}

TEST_F(OpenTerminal, TheDesktopsOwnLauncherIsUsed)
{
    setEnvironment("XDG_CURRENT_DESKTOP", "XFCE");
    makeProgram("exo-open");
    EXPECT_EQ(open(listed(), true), done);
    EXPECT_EQ(startOf("exo-open").arguments, (std::vector<std::string>{"--launch", "TerminalEmulator"}));
}

TEST_F(OpenTerminal, WithoutATerminalThePersonIsToldWhatToDo)
{
    makeProgram("konsole");
    const Answer answer = open(listed(), true);
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("Install one"), std::string::npos);
    EXPECT_FALSE(wasStarted("konsole"));
}

TEST_F(OpenTerminal, ALinkOutOfTheListedFolderIsNotEntered)
{
    makeProgram("xdg-terminal-exec");
    fs::create_directory_symlink(outside(), listed() / "docs");
    fs::create_directories(outside() / "inner");
    for (const Path& path : {listed() / "docs", listed() / "docs/inner"}) {
        for (const bool background : {false, true}) {
            const Answer answer = open(path, background);
            EXPECT_EQ(answer.kind, '1');
            EXPECT_NE(answer.words.find("link"), std::string::npos) << answer.words;
        }
    }
    EXPECT_FALSE(wasStarted("xdg-terminal-exec"));
}

TEST_F(OpenTerminal, ItDoesNotApplyToSeveralItems)
{
    makeProgram("xdg-terminal-exec");
    EXPECT_EQ(run("open-terminal", {folder("a"), folder("b")}).kind, '2');
    EXPECT_FALSE(wasStarted("xdg-terminal-exec"));
}

} // namespace
