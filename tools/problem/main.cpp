#include "platform/linux/program/Program.h"
#include "problem/ProblemWindow.h"
#include "problem/StoppedPanel.h"
#include "settings/Deployment.h"

#include <string>

namespace {

using namespace LinuxDesktop;

const ProgramDescription problem = {
    .name = "orvik-menu-problem",
    .identifier = std::string(Deployment::applicationIdentifier) + ".problem",
    .usage = R"(Usage: orvik-menu-problem [OPTION]
Shows why the control panel of Orvik Menu has stopped, and repairs its settings.
The panel starts it when it cannot go on.

  --help     print this text
  --version  print the version
)",
    .noDisplay = "there is no display to show the window on",
    .noSessionBus = "there is no session bus",
    // Each tells of an error of its own.
    .runsOnce = false,
};

} // namespace

int main(int argc, char** argv)
{
    return Program::run(problem, argc, argv, [](Program& program) {
        const ProblemTool::StoppedPanel panel;
        ProblemTool::ProblemWindow window(panel, Program::icon());
        return program.show(window);
    });
}
