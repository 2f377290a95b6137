#include "TransferTest.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <tuple>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// Of a thousand files, in folders and by themselves.
class Kills : public TransferTest, public testing::WithParamInterface<std::tuple<bool, bool>> {
protected:
    Kills() : TransferTest(std::get<1>(GetParam()) ? Disks::Two : Disks::One) {}

    static constexpr int files = 1000;
    static constexpr int itemsInTree = 500;

    /// How often to kill: ORVIK_KILLS, or a few times.
    static int kills()
    {
        constexpr int few = 10;
        const char* wanted = std::getenv("ORVIK_KILLS");
        return wanted ? std::atoi(wanted) : few;
    }
    [[nodiscard]] static What what() { return std::get<0>(GetParam()) ? What::Move : What::Copy; }

    static std::string textOf(int number)
    {
        return std::string(static_cast<std::size_t>(number % 97 * 40), static_cast<char>('a' + number % 26)) +
               std::to_string(number);
    }
    static fs::path placeOf(int number)
    {
        const std::string name = std::to_string(number);
        return number < itemsInTree ? fs::path("tree") / std::to_string(number % 10) / name : fs::path(name);
    }

    std::vector<fs::path> prepare()
    {
        for (const Path& place : {source(), target()}) {
            for (const auto& entry : fs::directory_iterator(place))
                fs::remove_all(entry.path());
        }
        std::vector<fs::path> items{source() / "tree"};
        for (int number = 0; number < files; ++number) {
            const fs::path path = file(source() / placeOf(number), textOf(number));
            if (number >= itemsInTree)
                items.push_back(path);
        }
        return items;
    }

    /// Gives how many are at the target.
    int expectEachIsWhole() const
    {
        int moved = 0;
        for (int number = 0; number < files; ++number) {
            const bool isAtTarget = fs::exists(target() / placeOf(number));
            const bool isAtSource = fs::exists(source() / placeOf(number));
            moved += isAtTarget ? 1 : 0;
            EXPECT_TRUE(isAtSource || (isAtTarget && what() == What::Move)) << number;
            if (isAtTarget) {
                EXPECT_EQ(contentOf(target() / placeOf(number)), textOf(number));
            }
            if (isAtSource) {
                EXPECT_EQ(contentOf(source() / placeOf(number)), textOf(number));
            }
        }
        return moved;
    }
};

INSTANTIATE_TEST_SUITE_P(Everywhere, Kills, testing::Combine(testing::Bool(), testing::Bool()), [](const auto& run) {
    return std::string(std::get<0>(run.param) ? "OfAMove" : "OfACopy") +
           (std::get<1>(run.param) ? "BetweenFileSystems" : "WithinAFileSystem");
});

TEST_P(Kills, LeaveEachFileWholeAndNothingElse)
{
    using Clock = std::chrono::steady_clock;
    std::vector<fs::path> items = prepare();
    const auto begin = Clock::now();
    EXPECT_EQ(run(what(), items).done, items.size());
    const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin);
    EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
    EXPECT_EQ(expectEachIsWhole(), 0);
    forget();

    std::mt19937 random(20010324);
    int inTheMiddle = 0;
    for (int round = 0; round < kills(); ++round) {
        items = prepare();
        const pid_t child = ::fork();
        if (child == 0) {
            static_cast<void>(run(what(), items));
            ::_exit(0);
        }
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<std::int64_t>(0, whole.count() * 5 / 4)(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        inTheMiddle += WIFSIGNALED(status) ? 1 : 0;

        expectEachIsWhole();
        startAnew();
        const int moved = expectEachIsWhole();
        expectNoLeftovers();
        // What has not come through can be done again, and all of it undone.
        std::vector<fs::path> rest;
        for (const fs::path& item : items) {
            if (fs::exists(item) && !fs::exists(target() / item.filename()))
                rest.push_back(item);
        }
        if (!rest.empty() && what() == What::Move && moved == 0) {
            EXPECT_EQ(kindsOf(run(what(), rest)), std::vector<Kind>{});
            EXPECT_EQ(kindsOf(undo()), std::vector<Kind>{});
            EXPECT_EQ(expectEachIsWhole(), 0);
        }
        ASSERT_FALSE(HasFailure()) << "kill " << round;
    }
    EXPECT_GT(inTheMiddle, 0);
}

} // namespace
