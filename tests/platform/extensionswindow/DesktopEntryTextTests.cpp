#include "extensions/DesktopEntryText.h"

#include <gtest/gtest.h>

using namespace ExtensionsTool;
using DesktopEntryText::commandOf;
using DesktopEntryText::escaped;
using DesktopEntryText::value;

TEST(DesktopEntryText, LeavesAPlainCommandAsItIs)
{
    EXPECT_EQ(commandOf(QStringLiteral("/usr/bin/orvik-menu_1.2+x")), QStringLiteral("/usr/bin/orvik-menu_1.2+x"));
    EXPECT_EQ(commandOf(QStringLiteral("/opt/Übung")), QStringLiteral("/opt/Übung"));
}

TEST(DesktopEntryText, QuotesACommandOfMoreThanOneWord)
{
    EXPECT_EQ(commandOf(QStringLiteral("/opt/two words/a;b")), QStringLiteral("\"/opt/two words/a;b\""));
}

TEST(DesktopEntryText, EscapesWhatAlsoMeansSomethingWithinQuotes)
{
    // Once for the quotes, and once more for the value.
    EXPECT_EQ(commandOf(QStringLiteral("/a\"b`c$d")), QStringLiteral("\"/a\\\\\"b\\\\`c\\\\$d\""));
    EXPECT_EQ(commandOf(QStringLiteral("/a\\b")), QStringLiteral("\"/a\\\\\\\\b\""));
}

TEST(DesktopEntryText, DoublesPercentSignsOfACommand)
{
    EXPECT_EQ(commandOf(QStringLiteral("/a%u")), QStringLiteral("/a%%u"));
}

TEST(DesktopEntryText, KeepsAValueInOneLine)
{
    EXPECT_EQ(escaped(QStringLiteral(" a\nb\tc\rd\\e f")), QStringLiteral("\\sa\\nb\\tc\\rd\\\\e f"));
    EXPECT_EQ(commandOf(QStringLiteral("/a\nb")), QStringLiteral("\"/a\\nb\""));
}

TEST(DesktopEntryText, FindsAValueInItsGroup)
{
    const QByteArray entry =
        "# Hidden=comment\n[Other]\nHidden=other\n[Desktop Entry]\r\nName = A = B \nHidden=true\n"
        "[Desktop Action x]\nExec=action\n";
    EXPECT_EQ(value(entry, QStringLiteral("Hidden")), QStringLiteral("true"));
    EXPECT_EQ(value(entry, QStringLiteral("Name")), QStringLiteral("A = B"));
    EXPECT_EQ(value(entry, QStringLiteral("Exec")), std::nullopt);
    EXPECT_EQ(value(QByteArray("\0\xff[=\n=", 7), QStringLiteral("Exec")), std::nullopt);
}
