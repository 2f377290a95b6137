#include "defaults/Commands.h"

#include "platform/linux/store/ReplaceFile.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

void say(const std::string& message)
{
    std::fprintf(stderr, "orvik-defaults: %s\n", message.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    // A reader that went away and a file size limit are errors to report, like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    LinuxDesktop::Store store;
    DefaultsTool::Outcome outcome = DefaultsTool::run(store, std::vector<std::string>(argv + 1, argv + argc));
    if (!outcome.message.empty())
        say(outcome.message);
    LinuxDesktop::FileOperations files;
    if (!LinuxDesktop::writeAll(files, STDOUT_FILENO, outcome.output)) {
        say(LinuxDesktop::systemFailure("could not write to", "standard output").what);
        outcome.status = DefaultsTool::ExitStatus::Failed;
    }
    // Without the store's end: what could not be stored is not tried again behind the answer's back.
    std::_Exit(static_cast<int>(outcome.status));
}
