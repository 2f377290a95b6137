#include "FakeSystem.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>

using namespace MenuExtension;

namespace {

/// A child of this process, until the test ends.
class Child {
public:
    /// `prepare` runs in it first, and may become another program.
    template<class Prepare>
    explicit Child(Prepare prepare)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        m_id = ::fork();
        if (m_id == 0) {
            ::alarm(60);
            prepare();
            EXPECT_EQ(::write(ends[1], "x", 1), 1);
            for (;;)
                ::pause();
        }
        ::close(ends[1]);
        char ready = 0;
        EXPECT_GE(::read(ends[0], &ready, 1), 0);
        ::close(ends[0]);
    }
    ~Child()
    {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

private:
    pid_t m_id = 0;
};

void copy(const std::string& from, const std::string& to)
{
    EXPECT_TRUE(std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing));
}

} // namespace

TEST(RunningProcess, IsSeenInTheSystemsOwnList)
{
    const FakeSystem system;
    const std::string program = system.path("usr/bin/nemo");
    const std::string bridge = system.path("usr/lib/nemo/extensions-3.0/liborvik-menu-nemo.so");
    system.installProgram("usr/bin/nemo");
    system.write("usr/lib/nemo/extensions-3.0/liborvik-menu-nemo.so");
    copy(ORVIK_FILE_MANAGER_STAND_IN, program);
    copy(ORVIK_MODULE_STAND_IN, bridge);
    Places places = system.places();
    places.processes = "/proc";
    const auto comesTo = [&](BridgeStatus status) {
        for (int tries = 0; tries < 1000 && bridgeStatuses(places).at(1) != status; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return bridgeStatuses(places).at(1) == status;
    };
    EXPECT_TRUE(comesTo(BridgeStatus::NotRunning));
    const Child loaded([&] { ::execl(program.c_str(), "nemo", bridge.c_str(), nullptr); });
    EXPECT_TRUE(comesTo(BridgeStatus::Loaded));
    {
        const Child other([&] { ::execl(program.c_str(), "nemo", nullptr); });
        EXPECT_TRUE(comesTo(BridgeStatus::NotLoaded));
    }
    EXPECT_TRUE(comesTo(BridgeStatus::Loaded));
    std::filesystem::rename(bridge, bridge + ".old");
    copy(ORVIK_MODULE_STAND_IN, bridge);
    std::filesystem::remove(bridge + ".old");
    EXPECT_TRUE(comesTo(BridgeStatus::OlderLoaded));
}

TEST(RunningProcess, IsNotKnownWhereItKeepsOthersFromLookingAtIt)
{
    const FakeSystem system;
    system.installProgram("usr/bin/nemo");
    system.write("usr/lib/nemo/extensions-3.0/liborvik-menu-nemo.so");
    const OrdinaryUser user;
    const Child nemo([] {
        ::prctl(PR_SET_NAME, "nemo");
        ::prctl(PR_SET_DUMPABLE, 0);
    });
    Places places = system.places();
    places.processes = "/proc";
    EXPECT_EQ(bridgeStatuses(places).at(1), BridgeStatus::NotKnown);
    places.user = 0x7ffffffe;
    EXPECT_EQ(bridgeStatuses(places).at(1), BridgeStatus::NotRunning);
}
