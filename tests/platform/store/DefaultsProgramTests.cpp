#include "Support.h"
#include "settings/Deployment.h"

#include <chrono>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <string>
#include <sys/file.h>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace DefaultsTests;

class DefaultsProgram : public SettingsTest, public ::testing::Test {
protected:
    [[nodiscard]] ProcessResult run(std::vector<std::string> arguments, std::string_view input = {}) const
    {
        arguments.insert(arguments.begin(), ORVIK_DEFAULTS_PROGRAM);
        return runProcess(arguments, input, {"XDG_CONFIG_HOME=" + root()});
    }

    /// The program through a shell, which can close its streams and send them elsewhere.
    [[nodiscard]] ProcessResult shell(const std::string& arguments) const
    {
        return runProcess({"/bin/sh", "-c", "\"$0\" " + arguments, ORVIK_DEFAULTS_PROGRAM}, {},
                          {"XDG_CONFIG_HOME=" + root()});
    }

    /// What the program prints, which it must print with success and without a message.
    [[nodiscard]] std::string output(std::vector<std::string> arguments) const
    {
        const auto result = run(std::move(arguments));
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, "");
        return result.output;
    }

    /// The status of a run that must fail with a message and print nothing.
    [[nodiscard]] int failure(std::vector<std::string> arguments, std::string_view input = {}) const
    {
        const auto result = run(std::move(arguments), input);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.errors, "");
        return result.status;
    }
};

TEST_F(DefaultsProgram, ValuesOfEveryTypeAreWrittenAndRead)
{
    struct Case {
        std::vector<std::string> words;
        NS::Value value;
        std::string text;
    };
    const std::vector<Case> cases{
        {{"-bool", "true"}, true, "1"},
        {{"-bool", "YES"}, true, "1"},
        {{"-bool", "1"}, true, "1"},
        {{"-bool", "false"}, false, "0"},
        {{"-bool", "no"}, false, "0"},
        {{"-bool", "0"}, false, "0"},
        {{"-int", "-42"}, -42, "-42"},
        {{"-int", "0x10"}, 16, "16"},
        {{"-int", "+5"}, 5, "5"},
        {{"-int", "9223372036854775807"}, std::numeric_limits<std::int64_t>::max(), "9223372036854775807"},
        {{"-float", "1.5"}, 1.5, "1.5"},
        {{"-float", "1"}, 1.0, "1"},
        {{"-float", "-inf"}, -std::numeric_limits<double>::infinity(), "-infinity"},
        {{"-string", "two words \"q\""}, "two words \"q\"", "two words \"q\""},
        {{"-string", ""}, "", ""},
        {{"-string", "-bool"}, "-bool", "-bool"},
        {{"-date", "2024-02-29T23:59:59Z"}, NS::Date{1709251199.0}, "2024-02-29 23:59:59 +0000"},
        {{"-date", "0001-01-01T00:00:00Z"}, NS::Date{-62135596800.0}, "0001-01-01 00:00:00 +0000"},
        {{"-date", "9999-12-31T23:59:59Z"}, NS::Date{253402300799.0}, "9999-12-31 23:59:59 +0000"},
        {{"-date", "2024-02-29 23:59:59 +0000"}, NS::Date{1709251199.0}, "2024-02-29 23:59:59 +0000"},
        {{"-data", "00fF7a"}, NS::Data{0x00, 0xff, 0x7a}, "<00ff7a>"},
        {{"-data", "<00ff 7a>"}, NS::Data{0x00, 0xff, 0x7a}, "<00ff7a>"},
        {{"-data", ""}, NS::Data{}, "<>"},
        {{"-array"}, NS::Value::Array{}, "()"},
        {{"-array", "a", "b c", "\xc3\xa9\n"},
         NS::Value::Array{NS::Value("a"), NS::Value("b c"), NS::Value("\xc3\xa9\n")},
         "(\n    a,\n    \"b c\",\n    \"\xc3\xa9\\n\"\n)"},
        {{"-dict"}, NS::Value::Dictionary{}, "{}"},
        {{"-dict", "b", "2", "a", ""},
         NS::Value::Dictionary{{"a", ""}, {"b", "2"}},
         "{\n    a = \"\";\n    b = 2;\n}"},
        {{"-xml", "<array><integer>1</integer><dict><key>d</key><date>2024-01-01T00:00:00Z</date></dict></array>"},
         NS::Value::Array{NS::Value(1), NS::Value(NS::Value::Dictionary{{"d", NS::Date{1704067200.0}}})},
         "(\n    1,\n    {\n        d = \"2024-01-01 00:00:00 +0000\";\n    }\n)"},
        {{"-xml", std::string("\n") += propertyList("<real>2.5</real>")}, 2.5, "2.5"},
        {{"-xml", "<integer>18446744073709551615</integer>"},
         std::numeric_limits<std::uint64_t>::max(),
         "18446744073709551615"},
    };
    const std::string name(domainName);
    for (const auto& [words, value, text] : cases) {
        std::vector<std::string> arguments{"write", name, "k"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        EXPECT_EQ(output(arguments), "");
        EXPECT_EQ(stored("k"), value) << text;
        EXPECT_EQ(output({"read", name, "k"}), text + "\n");
    }
}

TEST_F(DefaultsProgram, BadValuesChangeNothingAndEndWithTwo)
{
    store({{"k", "before"}});
    const std::vector<std::vector<std::string>> cases{
        {"-bool", "maybe"},
        {"-bool"},
        {"-bool", "yes", "no"},
        {"-int", "1.5"},
        {"-int", ""},
        {"-int", "9223372036854775808"},
        {"-int", "0x8000000000000000"},
        {"-int", " 1"},
        {"-float", "one"},
        {"-float", "+-1"},
        {"-string"},
        {"-string", "a", "b"},
        {"-string", "\xff"},
        {"-string", "\x01"},
        {"-int", "+-5"},
        {"-int", "++5"},
        {"-date", "0000-12-31T23:59:59Z"},
        {"-date", "-0001-01-01T00:00:00Z"},
        {"-date", "10000-01-01T00:00:00Z"},
        {"-date", "yesterday"},
        {"-date", "2024-02-30T00:00:00Z"},
        {"-data", "abc"},
        {"-data", "zz"},
        {"-dict", "key"},
        {"-array", "\x80"},
        {"-xml", "<array>"},
        {"-xml", "<dict/><dict/>"},
        {"-xml", ""},
        {"-number", "1"},
        {"value"},
        {},
    };
    for (const auto& words : cases) {
        std::vector<std::string> arguments{"write", std::string(domainName), "k"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        EXPECT_EQ(failure(arguments), 2) << (words.empty() ? "nothing" : words.back());
    }
    EXPECT_EQ(failure({"write", std::string(domainName), "\x01", "-int", "1"}), 2);
    EXPECT_EQ(output({"read", std::string(domainName)}), "{\n    k = before;\n}\n");
}

TEST_F(DefaultsProgram, WrongUsageEndsWithTwo)
{
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {},
             {"frobnicate"},
             {"domains", "x"},
             {"read", "a", "b", "c"},
             {"write"},
             {"write", "a", "b"},
             {"delete", "a"},
             {"export", "a"},
             {"import", "a"},
             {"path"},
             {"path", "a/b"},
             {"path", ""},
             {"path", ".."},
             {"read", "a/b"},
             {"--help", "x"},
         })
        EXPECT_EQ(failure(arguments), 2) << (arguments.empty() ? "nothing" : arguments.front());
    EXPECT_FALSE(std::filesystem::exists(folder()));
}

TEST_F(DefaultsProgram, WhatIsNotThereEndsWithOne)
{
    EXPECT_EQ(failure({"read", "absent"}), 1);
    EXPECT_EQ(failure({"read", "absent", "k"}), 1);
    EXPECT_EQ(failure({"delete", "absent", "k"}), 1);
    EXPECT_EQ(failure({"export", "absent", "-"}), 1);
    store({{"k", 1}});
    EXPECT_EQ(failure({"read", std::string(domainName), "absent"}), 1);
    EXPECT_EQ(failure({"delete", std::string(domainName), "absent"}), 1);
    EXPECT_EQ(output({"domains"}), std::string(domainName) + "\n");
}

TEST_F(DefaultsProgram, TheTwoDomainsHaveShortNames)
{
    const std::string suite(Deployment::suiteName);
    const std::string app(Deployment::applicationIdentifier);
    EXPECT_EQ(output({"path", "suite"}), folder() + "/" + suite + ".plist\n");
    EXPECT_EQ(output({"path", "app"}), folder() + "/" + app + ".plist\n");
    EXPECT_EQ(output({"write", "suite", "k", "-int", "1"}), "");
    EXPECT_EQ(output({"write", "app", "k", "-int", "2"}), "");
    EXPECT_EQ(output({"read", suite, "k"}), "1\n");
    EXPECT_EQ(output({"read", "app", "k"}), "2\n");
    EXPECT_EQ(output({"domains"}), suite + "\n" + app + "\n");
    EXPECT_EQ(output({"read"}),
              "{\n    " + suite + " = {\n        k = 1;\n    };\n    " + app + " = {\n        k = 2;\n    };\n}\n");
}

TEST_F(DefaultsProgram, WithoutSettingsThereAreNoDomains)
{
    EXPECT_EQ(output({"domains"}), "");
    EXPECT_EQ(output({"read"}), "{}\n");
    EXPECT_FALSE(std::filesystem::exists(folder()));
}

TEST_F(DefaultsProgram, DeleteRemovesOneKey)
{
    store({{"a", 1}, {"b", 2}});
    EXPECT_EQ(output({"delete", std::string(domainName), "a"}), "");
    EXPECT_EQ(output({"read", std::string(domainName)}), "{\n    b = 2;\n}\n");
}

TEST_F(DefaultsProgram, ADomainIsExportedAndImported)
{
    store({{"a", 1}, {"d", NS::Data{1, 2}}});
    const std::string name(domainName);
    EXPECT_EQ(output({"export", name, "-"}), readFile(file()));
    EXPECT_EQ(output({"export", name, root() + "/copy"}), "");
    EXPECT_EQ(readFile(root() + "/copy"), readFile(file()));

    EXPECT_EQ(output({"write", name, "other", "-int", "3"}), "");
    EXPECT_EQ(output({"import", name, root() + "/copy"}), "");
    EXPECT_EQ(output({"read", name}), "{\n    a = 1;\n    d = <0102>;\n}\n");

    const auto result = run({"import", "new", "-"}, propertyList("<dict><key>k</key><true/></dict>"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(output({"read", "new"}), "{\n    k = 1;\n}\n");
    EXPECT_EQ(run({"import", "empty", "-"}, propertyList("<dict/>")).status, 0);
    EXPECT_EQ(output({"read", "empty"}), "{}\n");
}

TEST_F(DefaultsProgram, AnExportThatFailsLeavesTheFileBeforeItWhole)
{
    const std::string name(domainName);
    store({{"a", std::string(3000, 'x')}});
    const std::string copy = root() + "/copy";
    writeFile(copy, "before");
    const auto exportWith = [&](const std::string& limit) {
        return runProcess({"/bin/sh", "-c", "cd \"$2\"; " + limit + "; exec \"$0\" export \"$1\" copy",
                           ORVIK_DEFAULTS_PROGRAM, name, root()},
                          {}, {"XDG_CONFIG_HOME=" + root()});
    };
    EXPECT_EQ(exportWith("ulimit -f 1").status, 1);
    EXPECT_EQ(readFile(copy), "before");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(root()), {}), 2);

    std::filesystem::create_hard_link(copy, root() + "/other");
    std::filesystem::rename(copy, root() + "/target");
    std::filesystem::create_symlink("target", copy);
    EXPECT_EQ(exportWith(":").status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(copy));
    EXPECT_EQ(readFile(copy), readFile(file()));
    EXPECT_EQ(readFile(root() + "/other"), "before");
    EXPECT_EQ(std::filesystem::status(copy).permissions(), std::filesystem::perms(0600));
}

TEST_F(DefaultsProgram, AnExportIntoAPipeLeavesThePipe)
{
    store({{"a", 1}});
    const auto result =
        runProcess({"/bin/sh", "-c", "mkfifo \"$2/pipe\"; cat \"$2/pipe\" & \"$0\" export \"$1\" \"$2/pipe\" && wait",
                    ORVIK_DEFAULTS_PROGRAM, std::string(domainName), root()},
                   {}, {"XDG_CONFIG_HOME=" + root()});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, readFile(file()));
    EXPECT_TRUE(std::filesystem::is_fifo(root() + "/pipe"));
}

TEST_F(DefaultsProgram, AnImportKeepsTheFractionsOfDates)
{
    const std::string name(domainName);
    const auto result =
        run({"import", name, "-"}, propertyList("<dict><key>d</key><date>2024-01-01T00:00:05.25Z</date></dict>"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(stored("d"), NS::Value(NS::Date{1704067205.25}));
}

TEST_F(DefaultsProgram, ABadImportChangesNothing)
{
    store({{"a", 1}});
    const std::string before = readFile(file());
    const std::string name(domainName);
    EXPECT_EQ(failure({"import", name, "-"}, "garbage"), 2);
    EXPECT_EQ(failure({"import", name, "-"}, ""), 2);
    EXPECT_EQ(failure({"import", name, "-"}, propertyList("<array/>")), 2);
    EXPECT_EQ(failure({"import", name, root() + "/absent"}), 2);
    EXPECT_EQ(failure({"import", name, root()}), 2);
    EXPECT_EQ(readFile(file()), before);
}

TEST_F(DefaultsProgram, WhatCannotBeStoredIsNoSuccess)
{
    store({{"k", 1}});
    const std::string name(domainName);
    std::filesystem::remove(file(".lock"));
    std::filesystem::create_directory(file(".lock"));
    EXPECT_EQ(failure({"write", name, "k", "-int", "2"}), 1);
    EXPECT_EQ(failure({"delete", name, "k"}), 1);
    EXPECT_EQ(failure({"import", name, "-"}, propertyList("<dict/>")), 1);
    std::filesystem::remove(file(".lock"));
    EXPECT_EQ(output({"read", name, "k"}), "1\n");

    // Blocks of 512 bytes, so about 2 MB.
    const auto full =
        runProcess({"/bin/sh", "-c", "ulimit -f 4096; exec \"$0\" import \"$1\" -", ORVIK_DEFAULTS_PROGRAM, name},
                   propertyList("<dict><key>k</key><string>" + std::string(3000000, 'x') + "</string></dict>"),
                   {"XDG_CONFIG_HOME=" + root()});
    EXPECT_EQ(full.status, 1);
    EXPECT_NE(full.errors.find("File too large"), std::string::npos) << full.errors;
    EXPECT_EQ(output({"read", name, "k"}), "1\n");
}

TEST_F(DefaultsProgram, ALockHeldForLongEndsTheWriteWithOne)
{
    store({{"k", 1}});
    const LinuxDesktop::FileDescriptor lock(::open(file(".lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX), 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(failure({"write", std::string(domainName), "k", "-int", "2"}), 1);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
    EXPECT_EQ(stored("k"), NS::Value(1));
}

TEST_F(DefaultsProgram, WhatCannotBeReadEndsWithOne)
{
    makeFolder();
    std::filesystem::create_directory(file());
    EXPECT_EQ(failure({"read", std::string(domainName)}), 1);
    EXPECT_EQ(failure({"write", std::string(domainName), "k", "-int", "1"}), 1);
    EXPECT_EQ(failure({"export", std::string(domainName), "-"}), 1);
}

TEST_F(DefaultsProgram, OutputThatCannotBeWrittenIsNoSuccess)
{
    store({{"k", "v"}});
    const std::string name(domainName);
    for (const char* elsewhere : {" > /dev/full", " >&-"}) {
        for (const std::string& command :
             {std::string("domains"), "read " + name, "export " + name + " -", std::string("--help")}) {
            const auto result = shell(command + elsewhere);
            EXPECT_EQ(result.status, 1) << command << elsewhere;
            EXPECT_NE(result.errors, "") << command << elsewhere;
        }
    }
    EXPECT_EQ(failure({"export", name, root() + "/absent/file"}), 1);
    EXPECT_EQ(shell("write " + name + " k -string new 2>&- >&- <&-").status, 0);
    EXPECT_EQ(stored("k"), NS::Value("new"));
}

TEST_F(DefaultsProgram, ADamagedFileIsRecoveredAndOnlyStandardErrorTellsOfIt)
{
    store({{"k", "good"}});
    writeFile(file(), "garbage");
    const auto result = run({"read", std::string(domainName), "k"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "good\n");
    EXPECT_NE(result.errors.find(".corrupt-"), std::string::npos) << result.errors;
    EXPECT_TRUE(result.errors.starts_with("orvik-defaults: ")) << result.errors;
}

TEST_F(DefaultsProgram, WhatIsToldOfANameIsOneLine)
{
    const auto result = run({"two\nlines"});
    EXPECT_EQ(result.errors, "orvik-defaults: unknown command two\\x0alines; see --help\n");
}

TEST_F(DefaultsProgram, AfterAWriteDamageLosesNothingOfItAndNoTemporaryIsLeft)
{
    const std::string name(domainName);
    makeFolder();
    writeFile(file(".tmp-0123456789abcdef"), "half");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(output({"write", name, "k" + std::to_string(i), "-int", "1"}), "");
        EXPECT_EQ(readFile(file(".bak")), readFile(file()));
        EXPECT_TRUE(files(".tmp-").empty());
    }
    EXPECT_EQ(output({"delete", name, "k0"}), "");
    EXPECT_EQ(readFile(file(".bak")), readFile(file()));
    writeFile(file(), "garbage");
    EXPECT_EQ(run({"read", name, "k9"}).output, "1\n");
    EXPECT_EQ(run({"read", name, "k0"}).status, 1);
}

TEST_F(DefaultsProgram, OfWritersThatRunTogetherNoneIsUndoneByLaterDamage)
{
    const std::string name(domainName);
    std::vector<std::thread> writers;
    for (int i = 0; i < 8; ++i)
        writers.emplace_back([&, i] {
            for (int n = 0; n < 3; ++n)
                EXPECT_EQ(output({"write", name, "k" + std::to_string(i) + std::to_string(n), "-int", "1"}), "");
        });
    for (std::thread& writer : writers)
        writer.join();
    writeFile(file(), "garbage");
    for (int i = 0; i < 8; ++i)
        for (int n = 0; n < 3; ++n)
            EXPECT_EQ(run({"read", name, "k" + std::to_string(i) + std::to_string(n)}).output, "1\n");
    EXPECT_TRUE(files(".tmp-").empty());
}

TEST_F(DefaultsProgram, HelpAndVersionArePrinted)
{
    EXPECT_EQ(output({"--version"}), "orvik-defaults 2.0\n");
    const std::string help = output({"--help"});
    for (const char* command : {"domains", "read [DOMAIN [KEY]]", "write DOMAIN KEY", "delete DOMAIN KEY",
                                "export DOMAIN FILE|-", "import DOMAIN FILE|-", "path DOMAIN"})
        EXPECT_NE(help.find(command), std::string::npos) << command;
}

} // namespace
