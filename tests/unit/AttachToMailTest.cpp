#include "mail/AttachToMail.h"

#include "mail/SendEmail.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <concepts>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

// Nothing ever makes one, but it could be made and would be a delegate.
static_assert(std::derived_from<SendEmail, NS::SharingServiceDelegate> && std::default_initializable<SendEmail>);

class AttachToMail : public testing::Test {
protected:
    void leaveRequest(const NS::Value& path, const NS::Value& clicked)
    {
        platform.suite.insert_or_assign("mailAttachPath", path);
        platform.suite.insert_or_assign("AttachClickedDate", clicked);
    }
    void leaveRequestClickedAt(double moment) { leaveRequest("/home/user/report.txt", NS::Date{moment}); }
    void leaveRequestOfAge(double seconds) { leaveRequestClickedAt(now() - seconds); }

    [[nodiscard]] double now() const { return platform.clock.now().timeIntervalSince1970; }
    [[nodiscard]] Lines panels() const { return platform.calls.startingWith("platform.makeOpenPanel"); }
    [[nodiscard]] Lines mails() const { return platform.calls.startingWith("mail."); }

    FakePlatform platform;
};

TEST_F(AttachToMail, AFreshRequestIsReadRemovedConfirmedAndHandedOverInThisOrder)
{
    leaveRequestOfAge(5.0);

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);

    EXPECT_EQ(platform.calls.lines(),
              (Lines{
                  opensSharedSuite,
                  R"(suite#1.objectForKey("mailAttachPath"))",
                  R"(suite#1.objectForKey("AttachClickedDate"))",
                  R"(suite#1.objectForKey("mailAttachPath"))",
                  R"(platform.now)",
                  R"(suite#1.removeObjectForKey("mailAttachPath"))",
                  R"(suite#1.removeObjectForKey("AttachClickedDate"))",
                  R"(platform.makeOpenPanel)",
                  R"(panel#1.setMessage("Please select the file that you want to send via email to allow sending"))",
                  R"(panel#1.setCanChooseDirectories(true))",
                  R"(panel#1.setAllowsMultipleSelection(false))",
                  R"(panel#1.setShowsHiddenFiles(true))",
                  R"(panel#1.setDirectoryURL("/home/user/report.txt"))",
                  R"(panel#1.setPrompt("Attach to Mail"))",
                  R"(panel#1.runModal)",
                  R"(panel#1.URL)",
                  R"(platform.sharingServiceNamed("compose-email"))",
                  R"(mail.performWithItems(["/home/user/chosen.txt"]))",
              }));
}

/// The suite while another program replaces the request, once, when its path has been read.
class ReplacedSuite : public FakeUserDefaults {
public:
    ReplacedSuite(FakePlatform& platform, NS::Value::Dictionary next)
        : FakeUserDefaults(platform.calls, "suite", platform.suite), m_platform(platform), m_next(std::move(next))
    {}

    std::optional<NS::Value> objectForKey(std::string_view key) override
    {
        auto value = FakeUserDefaults::objectForKey(key);
        if (key == "mailAttachPath" && m_next)
            m_platform.suite = *std::exchange(m_next, std::nullopt);
        return value;
    }

private:
    FakePlatform& m_platform;
    std::optional<NS::Value::Dictionary> m_next;
};

class ReplacedRequest : public FakePlatform {
public:
    std::shared_ptr<NS::UserDefaults> userDefaultsWithSuiteName(std::string_view) override
    {
        return std::make_shared<ReplacedSuite>(*this, next);
    }

    NS::Value::Dictionary next;
};

TEST(AttachToMailRequest, ThatReplacesAnotherBetweenTwoReadsIsTakenWhole)
{
    ReplacedRequest platform;
    const double now = platform.clock.now().timeIntervalSince1970;
    platform.suite = {{"mailAttachPath", "/stale"}, {"AttachClickedDate", NS::Date{now - 60.0}}};
    platform.next = {{"mailAttachPath", "/fresh"}, {"AttachClickedDate", NS::Date{now}}};

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);

    EXPECT_EQ(platform.calls.containing("setDirectoryURL"), (Lines{R"(panel#1.setDirectoryURL("/fresh"))"}));
    EXPECT_TRUE(platform.suite.empty());
}

TEST(AttachToMailRequest, ThatGoesBetweenTwoReadsIsNone)
{
    ReplacedRequest platform;
    platform.suite = {{"mailAttachPath", "/gone"}, {"AttachClickedDate", platform.clock.now()}};
    platform.next = {{"AttachClickedDate", platform.clock.now()}};

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::NoRequest);

    EXPECT_TRUE(platform.suite.empty());
}

TEST_F(AttachToMail, TheRequestIsGoneWhileThePanelIsOpen)
{
    leaveRequestOfAge(5.0);
    NS::Value::Dictionary suiteWhileOpen{{"unset", true}};
    platform.openPanel.whileOpen = [&] { suiteWhileOpen = platform.suite; };

    attachToMail();

    EXPECT_TRUE(suiteWhileOpen.empty());
}

TEST_F(AttachToMail, ASecondHandOffWhileThePanelIsOpenFindsNoRequest)
{
    leaveRequestOfAge(5.0);
    platform.openPanel.whileOpen = [] { EXPECT_EQ(attachToMail(), AttachToMailOutcome::NoRequest); };

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);

    EXPECT_EQ(panels().size(), 1U);
    EXPECT_EQ(mails().size(), 1U);
}

TEST_F(AttachToMail, OtherStoredValuesAreLeftAlone)
{
    platform.suite.insert_or_assign("showmenuicon", true);
    leaveRequestOfAge(5.0);

    attachToMail();

    EXPECT_EQ(platform.suite, (NS::Value::Dictionary{{"showmenuicon", true}}));
}

TEST_F(AttachToMail, EachHandOffOpensTheSuiteAnew)
{
    attachToMail();
    leaveRequestOfAge(5.0);
    attachToMail();

    EXPECT_EQ(platform.calls.startingWith("suite#2.removeObjectForKey").size(), 2U);
}

TEST_F(AttachToMail, WithoutASuiteThereIsNoRequestAndNothingIsRemoved)
{
    leaveRequestOfAge(5.0);
    platform.suiteCanBeRead = false;

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::NoRequest);

    EXPECT_EQ(platform.suite.size(), 2U);
    EXPECT_TRUE(panels().empty());
}

// The age of a request.

TEST_F(AttachToMail, AnAgeOf19Point99SecondsIsFresh)
{
    leaveRequestOfAge(19.99);
    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);
}

TEST_F(AttachToMail, TheLastMomentBelowTwentySecondsIsFresh)
{
    leaveRequestClickedAt(std::nextafter(now() - 20.0, now()));
    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);
}

TEST_F(AttachToMail, ADateInTheFutureIsFresh)
{
    leaveRequestOfAge(-60.0);
    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);
}

// Requests that are dropped.

struct Dropped {
    const char* name;
    NS::Value::Dictionary suite;
};

constexpr double testsNow = 1'700'000'000.0;
const NS::Value aPath = "/home/user/report.txt";
const NS::Value aFreshDate = NS::Date{testsNow - 5.0};

NS::Value::Dictionary requestOfAge(double seconds)
{
    return {{"mailAttachPath", aPath}, {"AttachClickedDate", NS::Date{testsNow - seconds}}};
}

NS::Value::Dictionary request(const NS::Value& path, const NS::Value& clicked)
{
    return {{"mailAttachPath", path}, {"AttachClickedDate", clicked}};
}

class ADroppedRequest : public AttachToMail, public testing::WithParamInterface<Dropped> {};

TEST_P(ADroppedRequest, IsRemovedWithoutAPanel)
{
    ASSERT_EQ(now(), testsNow);
    platform.suite = GetParam().suite;

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::NoRequest);

    EXPECT_TRUE(platform.suite.empty());
    EXPECT_EQ(platform.calls.containing("removeObjectForKey"),
              (Lines{R"(suite#1.removeObjectForKey("mailAttachPath"))",
                     R"(suite#1.removeObjectForKey("AttachClickedDate"))"}));
    EXPECT_TRUE(platform.calls.containing("synchronize").empty());
    EXPECT_TRUE(panels().empty());
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, ADroppedRequest,
    testing::Values(Dropped{"NoneAtAll", {}}, //
                    Dropped{"WithoutPath", {{"AttachClickedDate", aFreshDate}}},
                    Dropped{"WithoutDate", {{"mailAttachPath", aPath}}}, //
                    Dropped{"PathIsANumber", request(7, aFreshDate)},
                    Dropped{"PathIsData", request(NS::Data{0x2f}, aFreshDate)},
                    Dropped{"PathIsAnArray", request(NS::Value::Array{aPath}, aFreshDate)},
                    Dropped{"DateIsAString", request(aPath, "2023-11-14T22:13:15Z")},
                    Dropped{"DateIsAReal", request(aPath, testsNow - 5.0)},
                    Dropped{"DateIsAnInteger", request(aPath, 1'699'999'995)},
                    Dropped{"ExactlyTwentySecondsOld", requestOfAge(20.0)}, //
                    Dropped{"AnHourOld", requestOfAge(3600.0)},
                    Dropped{"AgeIsNotANumber", requestOfAge(std::numeric_limits<double>::quiet_NaN())},
                    Dropped{"InfinitelyOld", requestOfAge(std::numeric_limits<double>::infinity())}),
    [](const auto& tested) { return tested.param.name; });

// What the user answers.

TEST_F(AttachToMail, TheItemThatTheUserPicksIsSentNotTheOneProposed)
{
    leaveRequestOfAge(5.0);
    platform.openPanel.url = NS::URL::fileURLWithPath("/elsewhere/other.pdf");

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);

    EXPECT_EQ(mails(), (Lines{R"(mail.performWithItems(["/elsewhere/other.pdf"]))"}));
}

TEST_F(AttachToMail, AFolderIsSentLikeAFile)
{
    leaveRequest("/home/user/photos/", NS::Date{now()});
    platform.openPanel.url = NS::URL::fileURLWithPath("/home/user/photos/");

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::HandedOver);

    EXPECT_EQ(mails(), (Lines{R"(mail.performWithItems(["/home/user/photos"]))"}));
}

TEST_F(AttachToMail, APathIsHandedOnByteForByte)
{
    leaveRequest("/home/user/\xff odd\n.txt", NS::Date{now()});

    attachToMail();

    EXPECT_EQ(platform.calls.containing("setDirectoryURL"),
              (Lines{"panel#1.setDirectoryURL(\"/home/user/\xff odd\n.txt\")"}));
}

TEST_F(AttachToMail, ACancelledPanelSendsNothing)
{
    leaveRequestOfAge(5.0);
    platform.openPanel.response = 0;

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::Abandoned);

    EXPECT_TRUE(mails().empty());
    EXPECT_TRUE(platform.suite.empty());
}

TEST_F(AttachToMail, APanelConfirmedWithoutAnItemSendsNothing)
{
    leaveRequestOfAge(5.0);
    platform.openPanel.url = std::nullopt;

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::Abandoned);

    EXPECT_TRUE(mails().empty());
}

class AnotherPanelResponse : public AttachToMail, public testing::WithParamInterface<int> {};

TEST_P(AnotherPanelResponse, CountsAsNoRequestAndSendsNothing)
{
    leaveRequestOfAge(5.0);
    platform.openPanel.response = GetParam();

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::NoRequest);

    EXPECT_TRUE(mails().empty());
    EXPECT_TRUE(platform.suite.empty());
}

INSTANTIATE_TEST_SUITE_P(EachKind, AnotherPanelResponse, testing::Values(-1000, -1, 2, 1000));

using AttachToMailDeathTest = AttachToMail;

TEST_F(AttachToMailDeathTest, ADesktopWithoutAMailServiceIsFatal)
{
    leaveRequestOfAge(5.0);
    platform.hasMailService = false;

    EXPECT_DEATH(attachToMail(), fatalLine("there is no service to compose an e-mail with"));
}

TEST_F(AttachToMail, AMissingMailServiceIsNotNoticedWhenTheUserCancels)
{
    leaveRequestOfAge(5.0);
    platform.hasMailService = false;
    platform.openPanel.response = 0;

    EXPECT_EQ(attachToMail(), AttachToMailOutcome::Abandoned);
}

} // namespace
