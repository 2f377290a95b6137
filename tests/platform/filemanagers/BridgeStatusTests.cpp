#include "FakeSystem.h"

#include <sys/stat.h>

using namespace MenuExtension;
namespace fs = std::filesystem;

namespace {

/// Nemo and its bridge, and Thunar and Dolphin with theirs.
class BridgeStatusTest : public testing::Test {
protected:
    BridgeStatusTest()
    {
        for (const char* program : {"nemo", "thunar", "dolphin"})
            m_system.installProgram(std::string("usr/bin/") + program);
        for (const std::string& module : {nemoModule, thunarModule, dolphinModule})
            m_system.write(module);
        fs::create_directory(m_system.path("proc"));
    }

    [[nodiscard]] std::string program(const std::string& name) const { return m_system.path("usr/bin/" + name); }
    [[nodiscard]] std::string loaded(const std::string& name) const
    {
        return FakeSystem::loaded(m_system.path(name));
    }
    [[nodiscard]] std::string libc() const { return loaded("usr/lib/x86_64-linux-gnu/libc.so.6"); }
    [[nodiscard]] BridgeStatus nemo() const { return m_system.status("nemo"); }

    static inline const std::string libraries = "usr/lib/x86_64-linux-gnu";
    static inline const std::string nemoModule = libraries + "/nemo/extensions-3.0/liborvik-menu-nemo.so";
    static inline const std::string thunarModule = libraries + "/thunarx-3/liborvik-menu-thunar.so";
    static inline const std::string dolphinModule =
        libraries + "/qt5/plugins/kf5/kfileitemaction/orvik-menu-dolphin.so";

    FakeSystem m_system;
};

using Status = BridgeStatusTest;

} // namespace

TEST_F(Status, TellsThatAFileManagerIsNotInstalled)
{
    EXPECT_EQ(m_system.status("caja"), BridgeStatus::NoFileManager);
}

TEST_F(Status, TakesNeitherAFolderNorAFileThatCannotBeRunForAProgram)
{
    fs::create_directories(m_system.path("usr/bin/caja"));
    m_system.write("usr/bin/nautilus");
    m_system.link("usr/local/bin/nautilus", "nautilus");
    EXPECT_EQ(m_system.status("caja"), BridgeStatus::NoFileManager);
    EXPECT_EQ(m_system.status("nautilus"), BridgeStatus::NoFileManager);
}

TEST_F(Status, TellsThatTheBridgeIsNotInstalled)
{
    m_system.installProgram("usr/bin/caja");
    EXPECT_EQ(m_system.status("caja"), BridgeStatus::NotInstalled);
    fs::remove(m_system.path(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
    m_system.link(nemoModule, "nowhere");
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
    fs::remove(m_system.path(nemoModule));
    fs::create_directory(m_system.path(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
}

TEST_F(Status, FindsTheBridgeWhereverADistributionHasItsLibraries)
{
    for (const std::string folder : {"usr/lib/nemo", "usr/lib64/nemo", "usr/lib/aarch64-linux-gnu/nemo"}) {
        SCOPED_TRACE(folder);
        fs::remove_all(m_system.path("usr/lib"));
        fs::remove_all(m_system.path("usr/lib64"));
        EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
        m_system.write(folder + "/extensions-3.0/liborvik-menu-nemo.so");
        EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
    }
    m_system.write("usr/lib/qt/plugins/kf5/kfileitemaction/orvik-menu-dolphin.so");
    EXPECT_EQ(m_system.status("dolphin"), BridgeStatus::NotRunning);
}

TEST_F(Status, DoesNotTakeABridgeThatTheFileManagerDoesNotLookFor)
{
    m_system.installProgram("usr/local/bin/nemo");
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
    m_system.write("usr/local/lib/nemo/extensions-3.0/liborvik-menu-nemo.so");
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
    fs::remove(m_system.path("usr/local/bin/nemo"));
    fs::remove(m_system.path(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled);
}

TEST_F(Status, TakesAFolderNameForWhatItIs)
{
    const fs::path folder = m_system.path("a[b]*?\\c{d,e}");
    m_system.installProgram("a[b]*?\\c{d,e}/bin/caja");
    m_system.write("a[b]*?\\c{d,e}/lib/caja/extensions-2.0/liborvik-menu-caja.so");
    Places places = m_system.places();
    places.programFolders = {folder / "bin"};
    EXPECT_EQ(bridgeStatuses(places).at(2), BridgeStatus::NotRunning);
}

TEST_F(Status, LooksBehindAWrapper)
{
    m_system.installProgram("usr/local/bin/nemo");
    m_system.run(10, program("nemo"), libc() + loaded(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotInstalled) << "that is another program";
    m_system.write("usr/local/bin/nemo", "#!/bin/sh\nexec /usr/bin/nemo \"$@\"\n");
    EXPECT_EQ(nemo(), BridgeStatus::Loaded);
}

TEST_F(Status, TellsWhetherARunningOneHasLoadedTheBridge)
{
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
    m_system.run(10, program("nemo"), libc());
    EXPECT_EQ(nemo(), BridgeStatus::NotLoaded);
    m_system.write("proc/10/maps", libc() + loaded(nemoModule) + loaded(nemoModule) + libc());
    EXPECT_EQ(nemo(), BridgeStatus::Loaded);
}

TEST_F(Status, TellsThatAnOlderBridgeIsLoaded)
{
    for (const char* replaced : {" (deleted)", ".dpkg-tmp (deleted)"}) {
        fs::remove_all(m_system.path("proc/10"));
        m_system.run(10, program("nemo"), libc() + loaded(nemoModule + replaced));
        EXPECT_EQ(nemo(), BridgeStatus::OlderLoaded) << replaced;
        m_system.write("proc/10/maps", loaded(nemoModule) + loaded(nemoModule + replaced) + loaded(nemoModule));
        EXPECT_EQ(nemo(), BridgeStatus::OlderLoaded) << replaced << " beside the newer one";
    }
}

TEST_F(Status, IsNotThatOfOtherFilesThatAreThereNoLonger)
{
    const std::string others = FakeSystem::loaded("/memfd:a buffer (deleted)") +
                               loaded(libraries + "/nemo/extensions-3.0/another.so (deleted)");
    m_system.run(10, program("nemo"), others + loaded(nemoModule) + others);
    EXPECT_EQ(nemo(), BridgeStatus::Loaded);
}

TEST_F(Status, FollowsLinksOnTheWayToWhatTheSystemNames)
{
    fs::rename(m_system.path("usr"), m_system.path("real"));
    m_system.link("usr", "real");
    m_system.run(10, m_system.path("real/bin/nemo"),
                 FakeSystem::loaded(m_system.path("real" + nemoModule.substr(3))));
    EXPECT_EQ(nemo(), BridgeStatus::Loaded);
}

TEST_F(Status, IsThatOfTheProcessThatNeedsSomethingWhereThereAreSeveral)
{
    m_system.run(10, program("nemo"), libc() + loaded(nemoModule));
    m_system.run(11, program("nemo"), libc());
    m_system.run(12, program("nemo"), libc() + loaded(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotLoaded);
    m_system.write("proc/12/maps", libc() + loaded(nemoModule + " (deleted)"));
    EXPECT_EQ(nemo(), BridgeStatus::OlderLoaded);
    EXPECT_EQ(m_system.status("thunar"), BridgeStatus::NotRunning) << "that is Nemo's alone";
}

TEST_F(Status, CountsAProcessWhoseProgramHasBeenReplaced)
{
    m_system.run(10, program("nemo") + " (deleted)", libc());
    EXPECT_EQ(nemo(), BridgeStatus::NotLoaded);
}

TEST_F(Status, DoesNotCountOtherPrograms)
{
    m_system.run(10, program("nemo-desktop"), libc());
    m_system.run(11, program("nemo\n"), libc());
    m_system.run(12, program("nemo\n") + " (deleted)", libc());
    m_system.run(13, "/app/bin/nemo", libc());
    m_system.run(14, "nemo", libc());
    m_system.run(15, m_system.path("a folder\nwith " + program("nemo")), libc());
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
}

TEST_F(Status, DoesNotCountProcessesOfOtherPeople)
{
    m_system.run(10, program("nemo"), libc());
    Places places = m_system.places();
    ++places.user;
    EXPECT_EQ(bridgeStatuses(places).at(1), BridgeStatus::NotRunning);
}

TEST_F(Status, IsNoFaultWhereModulesAreLoadedWhenThereIsUseForThem)
{
    m_system.run(10, program("dolphin"), libc() + loaded(fs::path(dolphinModule).parent_path() / "another.so"));
    EXPECT_EQ(m_system.status("dolphin"), BridgeStatus::LoadedLater) << "it loads them with a menu";
    m_system.run(11, program("thunar"), libc());
    EXPECT_EQ(m_system.status("thunar"), BridgeStatus::LoadedLater) << "it loads them with its first window";
    m_system.write("proc/11/maps", libc() + loaded(fs::path(thunarModule).parent_path() / "another.so"));
    EXPECT_EQ(m_system.status("thunar"), BridgeStatus::NotLoaded) << "that window has been there";
    m_system.write("proc/10/maps", loaded(dolphinModule + " (deleted)"));
    EXPECT_EQ(m_system.status("dolphin"), BridgeStatus::OlderLoaded);
}

TEST_F(Status, OnlyANewStartMendsWhatIsLoadedWrongly)
{
    EXPECT_TRUE(needsRestart(BridgeStatus::NotLoaded));
    EXPECT_TRUE(needsRestart(BridgeStatus::OlderLoaded));
    for (const BridgeStatus status :
         {BridgeStatus::NoFileManager, BridgeStatus::NotInstalled, BridgeStatus::NotRunning,
          BridgeStatus::LoadedLater, BridgeStatus::Loaded, BridgeStatus::NotKnown})
        EXPECT_FALSE(needsRestart(status));
}

// What lies in a folder of processes need not be what one expects.

TEST_F(Status, TakesAPathForTheBridgeOnlyAsAWhole)
{
    const std::string module = m_system.path(nemoModule);
    m_system.run(10, program("nemo"), libc());
    for (const std::string& line :
         {"7f3a-7f3b r-xp 0 08:01 1 /tmp/a folder" + module, "7f3a-7f3b r-xp 0 08:01 1 /tmp/x\\012y " + module,
          std::string("7f3a-7f3b r-xp 0 08:01 1 [") + module + "]", "7f3a-7f3b rw-p 0 00:00 0 /memfd:" + module,
          "7f3a-7f3b rw-p 0 00:00 0 " + module + ".bak"}) {
        m_system.write("proc/10/maps", line + "\n");
        EXPECT_NE(nemo(), BridgeStatus::Loaded) << line;
        EXPECT_NE(nemo(), BridgeStatus::OlderLoaded) << line;
    }
}

TEST_F(Status, ReadsMemoryInWhateverFormItIsTold)
{
    using namespace std::string_literals;
    const std::string line = "7f3a-7f3b r-xp 0 08:01 1     " + m_system.path(nemoModule);
    m_system.run(10, program("nemo"), "");
    m_system.write("proc/10/maps", line);
    EXPECT_EQ(nemo(), BridgeStatus::Loaded) << "without an end of its last line";
    m_system.write("proc/10/maps", "\n\n \n\0\xff\n/\n"s + std::string(100'000, 'x') + "\n" + line + "\n");
    EXPECT_EQ(nemo(), BridgeStatus::Loaded) << "among bytes of no meaning";
    std::string large;
    for (int number = 0; number < 50'000; ++number)
        large += loaded("lib/" + std::to_string(number));
    m_system.write("proc/10/maps", large + line + "\n");
    EXPECT_EQ(nemo(), BridgeStatus::Loaded) << "of several megabytes";
    m_system.write("proc/10/maps", "/");
    EXPECT_EQ(nemo(), BridgeStatus::NotLoaded);
}

TEST_F(Status, IsNotKnownWhereTheMemoryCannotBeRead)
{
    m_system.run(10, program("nemo"), "");
    fs::remove(m_system.path("proc/10/maps"));
    fs::create_directory(m_system.path("proc/10/maps"));
    EXPECT_EQ(nemo(), BridgeStatus::NotKnown);
    m_system.run(11, program("nemo"), loaded(nemoModule));
    EXPECT_EQ(nemo(), BridgeStatus::NotKnown) << "another that has loaded it does not make up for that";
    m_system.run(12, program("nemo"), libc());
    EXPECT_EQ(nemo(), BridgeStatus::NotLoaded) << "but what is known to be wrong is told";
}

TEST_F(Status, DoesNotCountAProcessThatHasGone)
{
    m_system.link("proc/10/exe", program("nemo"));
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning) << "between two questions";
    m_system.write("proc/10/maps", "");
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning) << "and nobody has cleared it away";
    fs::create_directory(m_system.path("proc/11"));
    m_system.write("proc/11/comm", "nemo\n");
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
}

TEST_F(Status, IgnoresWhatIsNoProcess)
{
    for (const char* name : {"self", "10a", "a10", "1 0", "10\n", "-1"}) {
        m_system.link(std::string("proc/") + name + "/exe", program("nemo"));
        m_system.write(std::string("proc/") + name + "/maps", libc());
    }
    m_system.write("proc/20");
    m_system.link("proc/21", "nowhere");
    m_system.write("proc/22/exe");
    fs::create_directories(m_system.path("proc/23/exe"));
    ASSERT_EQ(::mkfifo(m_system.path("proc/24").c_str(), 0600), 0);
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
}

TEST_F(Status, DoesNotWaitForAPipeInTheMemorysPlace)
{
    m_system.link("proc/10/exe", program("nemo"));
    ASSERT_EQ(::mkfifo(m_system.path("proc/10/maps").c_str(), 0600), 0);
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
}

TEST_F(Status, IsThatOfNothingRunningWhereThereAreNoProcessesToBeSeen)
{
    fs::remove(m_system.path("proc"));
    EXPECT_EQ(nemo(), BridgeStatus::NotRunning);
}
