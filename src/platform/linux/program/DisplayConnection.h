#pragma once

#include <QApplication>

#include <memory>
#include <string>

namespace LinuxDesktop {

/// The QApplication, which takes its own arguments out of the others; both must outlive it. Where it finds no display
/// that it can show windows on, the process ends with `noDisplay`, a line on standard error, and exit status 1.
[[nodiscard]] std::unique_ptr<QApplication> connectToDisplay(int& argc, char** argv, const std::string& noDisplay);

} // namespace LinuxDesktop
