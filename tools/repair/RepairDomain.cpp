#include "repair/RepairDomain.h"

#include <utility>

namespace RepairTool {

LinuxDesktop::Result<Repair> repairSuite(LinuxDesktop::Domain& suite)
{
    // Sound settings are nobody's to lock.
    if (mendsOf(suite.contents().value_or(NS::Value::Dictionary{})).empty())
        return Repair{};
    Repair repair;
    auto kept = suite.editKeepingFile([&repair](NS::Value::Dictionary& values) {
        repair.mends = mendsOf(values);
        for (const Mend& mend : repair.mends) {
            if (mend.value)
                values.insert_or_assign(std::string(mend.key), *mend.value);
            else
                values.erase(std::string(mend.key));
        }
    });
    if (!kept)
        return LinuxDesktop::Failure{kept.error()};
    suite.finish();
    repair.keptFile = std::move(*kept);
    return repair;
}

} // namespace RepairTool
