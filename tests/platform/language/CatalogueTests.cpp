#include "platform/linux/language/Catalogue.h"

#include "platform/LocalizedString.h"
#include "settings/MenuCatalogue.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

namespace {

/// The title of the first action, of whoever wants that language.
std::string titleWith(const char* language)
{
    ::unsetenv("LC_ALL");
    ::unsetenv("LC_MESSAGES");
    ::setenv("LANG", "C.UTF-8", 1);
    ::setenv("LANGUAGE", language, 1);
    LinuxDesktop::useCatalogue(ORVIK_PROGRAMS);
    std::string title = NS::LocalizedString("MenuCatalogue", menuCatalogue.front().title);
    NS::setLocalizer(nullptr);
    return title;
}

TEST(Catalogue, AnswersInTheLanguageOfTheUser)
{
    const std::string german = titleWith("de");

    EXPECT_NE(german, menuCatalogue.front().title);
    EXPECT_EQ(titleWith("pt:de_AT:en"), german);
}

TEST(Catalogue, AnswersInEnglishWhereItHasNothing)
{
    EXPECT_EQ(titleWith("pt_BR"), menuCatalogue.front().title);
    LinuxDesktop::useCatalogue(ORVIK_PROGRAMS);
    EXPECT_EQ(NS::LocalizedString("MenuCatalogue", "A title of somebody's own"), "A title of somebody's own");
    NS::setLocalizer(nullptr);
}

TEST(Catalogue, LeavesEnglishAndItsLocaleAlone)
{
    std::setlocale(LC_ALL, "C");

    EXPECT_EQ(titleWith("en_GB:de"), menuCatalogue.front().title);

    EXPECT_STREQ(std::setlocale(LC_MESSAGES, nullptr), "C");
}

} // namespace
