#pragma once

#include "extension/actions/transfer/Transfer.h"

#include <QString>
#include <QStringList>

namespace MenuExtension::Transfers {

/// What a person reads of a transfer.
namespace Words {

/// "“Notes.txt”", or "40 items".
[[nodiscard]] QString items(const std::vector<std::string>& paths);
/// The folder's name, in quotes.
[[nodiscard]] QString name(const std::string& path);
/// "Moving 40 items to “Photos”".
[[nodiscard]] QString doing(bool isMove, const std::vector<std::string>& paths, const std::string& target);
/// "40 items were moved to “Photos”."
[[nodiscard]] QString done(bool isMove, const std::vector<std::string>& paths, const std::string& target,
                           const Result& result);
/// A sentence that says what is wrong with which item.
[[nodiscard]] QString problem(bool isMove, const Problem& problem);
/// Those that are kept, and how many more there are.
[[nodiscard]] QStringList problems(bool isMove, const Problems& problems);

} // namespace Words

} // namespace MenuExtension::Transfers
