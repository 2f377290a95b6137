#include "platform/linux/processes/DesktopEntry.h"

#include <gtest/gtest.h>
#include <vector>

using namespace LinuxDesktop;
using NS::ActivationPolicy;

namespace {

using Policy = std::optional<ActivationPolicy>;

Policy policyOf(const std::string& lines, const std::vector<std::string>& desktops = {})
{
    return policyOfDesktopEntry("[Desktop Entry]\nType=Application\nName=A\n" + lines, desktops);
}

} // namespace

TEST(DesktopEntry, ThatSaysNothingIsRegular)
{
    EXPECT_EQ(policyOf(""), ActivationPolicy::Regular);
    EXPECT_EQ(policyOfDesktopEntry("[Desktop Entry]", {}), ActivationPolicy::Regular);
}

TEST(DesktopEntry, ThatIsNotDisplayedIsAnAccessory)
{
    EXPECT_EQ(policyOf("NoDisplay=true\n"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("NoDisplay=1\n"), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("NoDisplay=false\n"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("NoDisplay=True\n"), ActivationPolicy::Regular);
}

TEST(DesktopEntry, ThatIsHiddenIsProhibitedWhateverElseItSays)
{
    EXPECT_EQ(policyOf("Hidden=true\n"), ActivationPolicy::Prohibited);
    EXPECT_EQ(policyOf("NoDisplay=true\nHidden=true\nOnlyShowIn=KDE;\n"), ActivationPolicy::Prohibited);
    EXPECT_EQ(policyOf("Hidden=false\n"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOfDesktopEntry("[Desktop Entry]\nHidden=true", {}), ActivationPolicy::Prohibited);
}

TEST(DesktopEntry, IsReadByTheRulesOfItsFormat)
{
    EXPECT_EQ(policyOf("  NoDisplay \t=  true  \n"), ActivationPolicy::Accessory) << "blanks around key and value";
    EXPECT_EQ(policyOf("NoDisplay=true\r\n"), ActivationPolicy::Accessory) << "another system's line ends";
    EXPECT_EQ(policyOf("NoDisplay=true"), ActivationPolicy::Accessory) << "no last line end";
    EXPECT_EQ(policyOf("#NoDisplay=true\n \n # Hidden=true\n"), ActivationPolicy::Regular) << "comments";
    EXPECT_EQ(policyOf("nodisplay=true\nHIDDEN=true\n"), ActivationPolicy::Regular) << "keys have a case";
    EXPECT_EQ(policyOf("NoDisplay[de]=true\n"), ActivationPolicy::Regular) << "a translation is another key";
    EXPECT_EQ(policyOf("Name=NoDisplay=true\n=\nNoDisplay\n"), ActivationPolicy::Regular);
}

TEST(DesktopEntry, HasItsKeysInItsOwnGroupOnly)
{
    EXPECT_EQ(policyOf("[Desktop Action new]\nNoDisplay=true\nHidden=true\n"), ActivationPolicy::Regular);
    EXPECT_EQ(policyOfDesktopEntry("Hidden=true\n# first\n\n[Desktop Entry]\nNoDisplay=true\n", {}),
              ActivationPolicy::Accessory);
    EXPECT_EQ(policyOfDesktopEntry("[KDE Desktop Entry]\nHidden=true\n[Desktop Entry]\n", {}),
              ActivationPolicy::Regular);
}

TEST(DesktopEntry, ThatIsOfNoApplicationIsInNoMenu)
{
    EXPECT_EQ(policyOfDesktopEntry("[Desktop Entry]\nType=Link\n", {}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOfDesktopEntry("[Desktop Entry]\nType=Directory\n", {}), ActivationPolicy::Accessory);
}

TEST(DesktopEntry, ThatOnlyOtherDesktopsShowIsAnAccessory)
{
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;KDE;\n", {"KDE"}), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;KDE\n", {"KDE"}), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;KDE;\n", {"XFCE"}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;\n", {}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("OnlyShowIn=\n", {"KDE"}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("OnlyShowIn=KD;KDEX;kde;\n", {"KDE"}), ActivationPolicy::Accessory);
}

TEST(DesktopEntry, ThatThisDesktopDoesNotShowIsAnAccessory)
{
    EXPECT_EQ(policyOf("NotShowIn=GNOME;KDE;\n", {"KDE"}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("NotShowIn=GNOME;\n", {"KDE"}), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("NotShowIn=GNOME;\n", {}), ActivationPolicy::Regular);
}

TEST(DesktopEntry, FollowsTheFirstNameOfTheDesktopThatItKnows)
{
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;\nNotShowIn=ubuntu;\n", {"ubuntu", "GNOME"}), ActivationPolicy::Accessory);
    EXPECT_EQ(policyOf("OnlyShowIn=ubuntu;\nNotShowIn=GNOME;\n", {"ubuntu", "GNOME"}), ActivationPolicy::Regular);
    EXPECT_EQ(policyOf("OnlyShowIn=GNOME;\n", {"other", "GNOME"}), ActivationPolicy::Regular);
}

TEST(DesktopEntry, IsNoneWithoutItsGroup)
{
    for (const std::string text : {"", "Hidden=true\n", "[Desktop Action x]\nHidden=true\n", "[Desktop Entry\n",
                                   "[desktop entry]\n", "\177ELF", "<html>"})
        EXPECT_EQ(policyOfDesktopEntry(text, {}), std::nullopt) << text;
    EXPECT_EQ(policyOfDesktopEntry(std::string(1000, '\0'), {}), std::nullopt);
}
