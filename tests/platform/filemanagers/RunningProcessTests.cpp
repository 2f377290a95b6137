#include "FakeSystem.h"

#include <csignal>
#include <dlfcn.h>
#include <sys/prctl.h>
#include <sys/wait.h>

using namespace MenuExtension;

namespace {

/// A child of this process, until the test ends.
class Child {
public:
    /// `prepare` runs in it first.
    template<class Prepare>
    explicit Child(Prepare prepare)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe(ends.data()), 0);
        m_id = ::fork();
        if (m_id == 0) {
            ::alarm(60);
            prepare();
            EXPECT_EQ(::write(ends[1], "x", 1), 1);
            for (;;)
                ::pause();
        }
        char ready = 0;
        EXPECT_EQ(::read(ends[0], &ready, 1), 1);
        ::close(ends[0]);
        ::close(ends[1]);
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

} // namespace

TEST(RunningProcess, IsSeenInTheSystemsOwnList)
{
    const FakeSystem system;
    // This program in the place of Nemo, and a library of the system's own in that of its bridge.
    const auto self = std::filesystem::canonical("/proc/self/exe");
    Dl_info library{};
    ASSERT_NE(::dladdr(reinterpret_cast<void*>(&::mkfifo), &library), 0);
    const std::string name = "usr/lib/nemo/extensions-3.0/liborvik-menu-nemo.so";
    system.link("usr/bin/nemo", self);
    system.link(name, library.dli_fname);
    Places places = system.places();
    places.processes = "/proc";
    EXPECT_EQ(bridgeStatuses(places).at(1), BridgeStatus::Loaded);

    std::filesystem::remove(system.path(name));
    system.write(name);
    EXPECT_EQ(bridgeStatuses(places).at(1), BridgeStatus::NotLoaded);
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
