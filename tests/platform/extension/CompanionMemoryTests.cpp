#include "CompanionProcess.h"

#include <fstream>

TEST_F(CompanionTest, TakesLittleMemory)
{
    const QProcess& companion = startAndWait();
    std::ifstream status("/proc/" + std::to_string(companion.processId()) + "/status");
    long kibibytes = 0;
    for (std::string word; kibibytes == 0 && status >> word;) {
        if (word == "VmRSS:")
            status >> kibibytes;
    }
    EXPECT_GT(kibibytes, 0);
    EXPECT_LT(kibibytes, 12 * 1024);
}
