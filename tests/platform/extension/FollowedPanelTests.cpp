#include "../bus/Waiting.h"
#include "CompanionProcess.h"
#include "PanelStandIn.h"
#include "settings/Deployment.h"

using namespace std::chrono_literals;
using Array = NS::Value::Array;

namespace {

const QStringList stored{QStringLiteral("file:///stored")};
const QStringList one{QStringLiteral("file:///one%20folder")};
const QStringList other{QStringLiteral("file:///other"), QStringLiteral("file:///%FF/")};
const QStringList none;
const QString companion =
    QString::fromUtf8(Deployment::extensionIdentifier.data(), Deployment::extensionIdentifier.size());

struct FollowedPanel : CompanionTest {
    FollowedPanel() { store({{"foldersArray", Array{"/stored"}}}); }

    /// Whether the watched directories are still these after a while.
    [[nodiscard]] bool keepsWatching(const QStringList& addresses)
    {
        runFor(300ms);
        return strings("DirectoryURLs") == addresses;
    }
};

} // namespace

TEST_F(FollowedPanel, ReplacesTheWatchedDirectories)
{
    PanelStandIn panel;
    panel.takeName();
    startAndWait();
    ASSERT_TRUE(watches(stored));
    panel.signal(one);
    EXPECT_TRUE(watches(one));
    panel.signal(other);
    EXPECT_TRUE(watches(other));
    panel.signal(none);
    EXPECT_TRUE(watches(none));
}

TEST_F(FollowedPanel, IsAskedWhatItPublishedBeforeTheCompanionStarted)
{
    PanelStandIn panel;
    panel.takeName();
    panel.publish(one);
    startAndWait();
    EXPECT_TRUE(watches(one));
}

TEST_F(FollowedPanel, IsAskedWhatItPublishedWhenItAppears)
{
    startAndWait();
    ASSERT_TRUE(watches(stored));
    PanelStandIn panel;
    panel.publish(one);
    EXPECT_TRUE(keepsWatching(stored)) << "the property counts once its owner has the name";
    panel.takeName();
    EXPECT_TRUE(watches(one));
}

TEST_F(FollowedPanel, IsAskedAgainAfterAnotherHasTakenTheName)
{
    PanelStandIn panel;
    panel.takeName();
    panel.publish(one);
    startAndWait();
    ASSERT_TRUE(watches(one));
    panel.releaseName();
    EXPECT_TRUE(keepsWatching(one));
    PanelStandIn next;
    next.publish(other);
    next.takeName();
    EXPECT_TRUE(watches(other));
    panel.signal(one);
    EXPECT_TRUE(keepsWatching(other)) << "it is the panel no longer";
}

TEST_F(FollowedPanel, MayPublishNothing)
{
    startAndWait();
    PanelStandIn panel;
    panel.takeName();
    EXPECT_TRUE(keepsWatching(stored));
    panel.signal(one);
    EXPECT_TRUE(watches(one));
}

TEST_F(FollowedPanel, IsNotAnyOtherProgram)
{
    PanelStandIn panel;
    panel.takeName();
    startAndWait();
    panel.signal(one);
    ASSERT_TRUE(watches(one));

    PanelStandIn stranger;
    stranger.signal(other);
    stranger.signal(other, companion);
    stranger.pretendOwnership(companion);
    stranger.signal(other, companion);
    EXPECT_TRUE(keepsWatching(one));
}

TEST_F(FollowedPanel, AndTheStoredFoldersCountWhicheverChangesLast)
{
    PanelStandIn panel;
    panel.takeName();
    startAndWait();
    panel.signal(one);
    ASSERT_TRUE(watches(one));
    store({{"foldersArray", Array{"/stored"}}, {"showinSubMenu", true}});
    ASSERT_TRUE(waitUntil([&] { return flag("ShowInSubmenu"); }));
    EXPECT_TRUE(watches(one)) << "the folders have not changed";
    store({{"foldersArray", Array{"/new"}}});
    EXPECT_TRUE(watches({QStringLiteral("file:///new")}));
    panel.signal(other);
    EXPECT_TRUE(watches(other));
}

TEST_F(FollowedPanel, MaySendWhatIsNoFileAddress)
{
    PanelStandIn panel;
    panel.takeName();
    startAndWait();
    panel.signal({QStringLiteral("https://example.org/"), one.front(), QStringLiteral("/path"), QString()});
    EXPECT_TRUE(watches(one));
}
