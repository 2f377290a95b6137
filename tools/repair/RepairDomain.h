#pragma once

#include "platform/linux/store/Domain.h"
#include "platform/linux/store/Result.h"
#include "settings/Repair.h"

#include <string>
#include <vector>

namespace RepairTool {

/// What a repair has changed.
struct Repair {
    std::vector<Mend> mends;
    /// Where the file lies that held the settings before; empty where nothing had to be changed.
    std::string keptFile;
};

/// Mends the shared suite's settings: keeps the file, then changes in one step what the panel cannot work with. When
/// it returns, all of that is on disk. After a failure the settings are as they were.
[[nodiscard]] LinuxDesktop::Result<Repair> repairSuite(LinuxDesktop::Domain& suite);

} // namespace RepairTool
