#pragma once

#include "platform/ClassTable.h"

namespace NS {

/// Runs the program: installs the desktop's Platform, loads the main storyboard (and with it the application
/// delegate and menu) from `classes`, runs the event loop, writes what is unwritten. Defined by the desktop that
/// the program is linked with. Returns the exit status.
int ApplicationMain(int argc, char** argv, const ClassTable& classes);

} // namespace NS
