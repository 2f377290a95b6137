#include "repair/RepairDomain.h"

#include <utility>

namespace RepairTool {

LinuxDesktop::Result<Repair> repairSuite(LinuxDesktop::Domain& suite)
{
    std::vector<Mend> mends = mendsOf(suite.contents().value_or(NS::Value::Dictionary{}));
    if (mends.empty())
        return Repair{};
    auto kept = suite.keepFile();
    if (!kept)
        return LinuxDesktop::Failure{kept.error()};
    for (const Mend& mend : mends) {
        if (mend.value)
            suite.setObject_forKey(*mend.value, mend.key);
        else
            suite.removeObjectForKey(mend.key);
    }
    if (!suite.finish())
        return LinuxDesktop::Failure{"could not store in " + suite.path()};
    return Repair{std::move(mends), std::move(*kept)};
}

} // namespace RepairTool
