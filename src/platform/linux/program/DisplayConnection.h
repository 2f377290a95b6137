#pragma once

#include <QApplication>

#include <functional>
#include <memory>

namespace LinuxDesktop {

/// The QApplication, which takes its own arguments out of the others; both must outlive it. Where it finds no display
/// that it can show windows on, the process ends with the exit status that `withoutDisplay` gives; some of the
/// toolkit's arguments may be among the others then.
[[nodiscard]] std::unique_ptr<QApplication> connectToDisplay(int& argc, char** argv,
                                                             const std::function<int()>& withoutDisplay);

} // namespace LinuxDesktop
