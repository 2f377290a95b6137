#include "extension/actions/duplicates/GrowingArray.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

using namespace MenuExtension::Duplicates;

namespace {

constexpr std::uint64_t many = std::uint64_t{4} << 20U;

/// Bytes of this process's memory that no file stands for.
std::size_t memoryOfOurOwn()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::size_t kilobytes = 0;
        if (word == "RssAnon:" && status >> kilobytes)
            return kilobytes << 10U;
    }
    return 0;
}

void fill(GrowingArray<std::uint64_t>& array)
{
    for (std::uint64_t value = 0; value < many; ++value)
        array.add(value);
}

bool isWhole(const GrowingArray<std::uint64_t>& array)
{
    for (std::uint64_t value = 0; value < many; ++value) {
        if (array[value] != value)
            return false;
    }
    return array.size() == many;
}

} // namespace

TEST(GrowingArray, KeepsMoreThanItKeepsInMemory)
{
    GrowingArray<std::uint64_t> array;
    const std::size_t before = memoryOfOurOwn();
    fill(array);
    EXPECT_TRUE(isWhole(array));
    array.rest();
    EXPECT_TRUE(isWhole(array));
    // 32 MiB are in it.
    EXPECT_LT(memoryOfOurOwn(), before + 3 * GrowingMemory::inMemory / 2);
}

TEST(GrowingArray, KeepsAllInMemoryWhereNoFileCanBeMade)
{
    const std::string cache = std::getenv("XDG_CACHE_HOME") ? std::getenv("XDG_CACHE_HOME") : "";
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    ::setenv("XDG_CACHE_HOME", "/proc/self", 1);
    ::setenv("HOME", "relative", 1);
    GrowingArray<std::uint64_t> array;
    fill(array);
    ::setenv("XDG_CACHE_HOME", cache.c_str(), 1);
    ::setenv("HOME", home.c_str(), 1);
    EXPECT_TRUE(isWhole(array));
}

TEST(GrowingArray, AValueStaysInItsPlaceWhileOthersAreAdded)
{
    GrowingArray<std::uint64_t> array;
    array.add(42);
    const std::uint64_t& first = array[0];
    fill(array);
    EXPECT_EQ(&first, &array[0]);
    EXPECT_EQ(first, 42);
}

TEST(GrowingArray, IsEmptyAgainAfterClear)
{
    GrowingArray<std::uint64_t> array;
    fill(array);
    array.clear();
    EXPECT_EQ(array.size(), 0);
    fill(array);
    EXPECT_TRUE(isWhole(array));
}
