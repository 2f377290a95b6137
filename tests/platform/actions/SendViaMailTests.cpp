#include "../bus/Waiting.h"
#include "ActionTest.h"
#include "BusStandIns.h"
#include "platform/linux/store/PropertyList.h"
#include "settings/Deployment.h"
#include "settings/Settings.h"
#include "support/Files.h"

#include <chrono>

namespace {

const QString posting = QStringLiteral("AttachFileToMail com.orvikstudio.orvikmenu.findersyncextension");

class SendViaMail : public ActionTest {
protected:
    [[nodiscard]] std::optional<NS::Value> path() const { return stored(std::string(Settings::mailAttachPath.key)); }
    [[nodiscard]] std::optional<NS::Value> date() const
    {
        return stored(std::string(Settings::AttachClickedDate.key));
    }
    static double now()
    {
        return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
    }
};

TEST_F(SendViaMail, TheRequestIsStoredAndPostedAndThePanelStarts)
{
    NotificationObserver observer(busAddress());
    makePanel();
    const double before = now();
    EXPECT_EQ(run("send-via-mail", {file("notes.txt")}), done);
    EXPECT_EQ(path(), NS::Value((listed() / "notes.txt").native()));
    ASSERT_TRUE(date() && date()->date());
    // In whole seconds.
    EXPECT_GE(date()->date()->timeIntervalSince1970, before - 1);
    EXPECT_LE(date()->date()->timeIntervalSince1970, now() + 1);
    EXPECT_TRUE(waitUntil([&] { return observer.posted() == QStringList{posting}; }));
    EXPECT_EQ(startOfPanel().token, "token-1");
}

TEST_F(SendViaMail, APanelThatRunsIsNotStartedAgain)
{
    OtherProgram panel(busAddress());
    panel.connection().registerService(
        QString::fromUtf8(Deployment::applicationIdentifier.data(), Deployment::applicationIdentifier.size()));
    NotificationObserver observer(busAddress());
    makePanel();
    EXPECT_EQ(run("send-via-mail", {folder("docs")}), done);
    EXPECT_TRUE(waitUntil([&] { return observer.posted() == QStringList{posting}; }));
    EXPECT_FALSE(panelWasStarted());
}

TEST_F(SendViaMail, WithoutABusThePanelFindsTheRequest)
{
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null");
    makePanel();
    EXPECT_EQ(run("send-via-mail", {file("a")}), done);
    startOfPanel();
    EXPECT_TRUE(path());
}

TEST_F(SendViaMail, WhateverIsTextCanBeSentAndAllElseIsRefusedInWords)
{
    makePanel();
    for (const std::string& name : hostileNames) {
        SCOPED_TRACE(name);
        const Path item = file(name);
        const Answer answer = run("send-via-mail", {item});
        if (!LinuxDesktop::PropertyList::unstorableReason(NS::Value(item.native()))) {
            EXPECT_EQ(answer, done);
            EXPECT_EQ(path(), NS::Value(item.native()));
            startOfPanel();
        } else {
            EXPECT_EQ(answer.kind, '1');
            EXPECT_NE(answer.words.find("Rename it"), std::string::npos);
            EXPECT_FALSE(panelWasStarted());
        }
    }
}

TEST_F(SendViaMail, WhatElseIsStoredStays)
{
    makePanel();
    store("other", NS::Value(7));
    EXPECT_EQ(run("send-via-mail", {file("a")}), done);
    EXPECT_EQ(stored("other"), NS::Value(7));
    startOfPanel();
}

TEST_F(SendViaMail, SettingsThatCannotBeWrittenAreNamed)
{
    makePanel();
    const Answer answer =
        run("send-via-mail", {file("a")}, {.background = false, .caller = {}, .before = forbidWriting});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("cannot be written"), std::string::npos);
    EXPECT_FALSE(path());
    EXPECT_FALSE(panelWasStarted());
}

TEST_F(SendViaMail, ItAppliesToOneItem)
{
    EXPECT_EQ(run("send-via-mail", {file("a"), file("b")}).kind, '2');
    EXPECT_EQ(run("send-via-mail", {listed()}, {.background = true}).kind, '2');
    EXPECT_FALSE(path());
}

} // namespace
