#include "platform/linux/language/WantedLanguages.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

namespace {

using LinuxDesktop::wantedLanguages;
using Languages = std::vector<std::string>;

Languages wantedWith(const std::map<std::string, std::string>& variables)
{
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        ::unsetenv(name);
    for (const auto& [name, value] : variables)
        ::setenv(name.c_str(), value.c_str(), 1);
    return wantedLanguages();
}

TEST(WantedLanguages, AreThoseOfTheLocaleWithItsCountryAndWithout)
{
    EXPECT_EQ(wantedWith({{"LANG", "de_AT.UTF-8@euro"}}), (Languages{"de_AT", "de"}));
    EXPECT_EQ(wantedWith({{"LANG", "fr"}}), Languages{"fr"});
}

TEST(WantedLanguages, AreThoseOfTheVariableThatCountsMost)
{
    EXPECT_EQ(wantedWith({{"LC_MESSAGES", "es_ES.UTF-8"}, {"LANG", "de_DE.UTF-8"}}), (Languages{"es_ES", "es"}));
    EXPECT_EQ(wantedWith({{"LC_ALL", "ar_EG"}, {"LC_MESSAGES", "es_ES"}, {"LANG", "de_DE"}}),
              (Languages{"ar_EG", "ar"}));
    EXPECT_EQ(wantedWith({{"LC_ALL", ""}, {"LANG", "de"}}), Languages{"de"});
    EXPECT_EQ(wantedWith({{"LANGUAGE", "fr:zh_CN"}, {"LC_ALL", "de_DE.UTF-8"}}), (Languages{"fr", "zh_CN", "zh"}));
}

TEST(WantedLanguages, AreNoneForWhoeverWantsEnglishFirst)
{
    for (const char* english : {"en", "en_US.UTF-8", "en_GB:de", "C.UTF-8", "POSIX"})
        EXPECT_EQ(wantedWith({{"LANGUAGE", english}, {"LANG", "de_DE.UTF-8"}}), Languages{}) << english;
    EXPECT_EQ(wantedWith({{"LANG", "en_US.UTF-8"}}), Languages{});
    EXPECT_EQ(wantedWith({{"LANG", "C.UTF-8"}}), Languages{});
    EXPECT_EQ(wantedWith({}), Languages{});
}

TEST(WantedLanguages, EndBeforeEnglish)
{
    EXPECT_EQ(wantedWith({{"LANGUAGE", "pt_BR:en:de"}, {"LANG", "pt_BR.UTF-8"}}), (Languages{"pt_BR", "pt"}));
}

TEST(WantedLanguages, AreNoneWithoutALocaleWhateverTheListSays)
{
    EXPECT_EQ(wantedWith({{"LANGUAGE", "de"}}), Languages{});
    EXPECT_EQ(wantedWith({{"LANGUAGE", "de"}, {"LC_ALL", "C"}, {"LANG", "de_DE.UTF-8"}}), Languages{});
    EXPECT_EQ(wantedWith({{"LANGUAGE", "de"}, {"LANG", "C.UTF-8"}}), Languages{"de"});
}

TEST(WantedLanguages, AreNamesOfFiles)
{
    EXPECT_EQ(wantedWith({{"LANGUAGE", "../../x:::de:_DE:."}, {"LANG", "de_DE"}}), Languages{"de"});
}

} // namespace
