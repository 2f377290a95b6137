#include "defaults/Commands.h"

#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/system/Complaint.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

int main(int argc, char** argv)
{
    // A reader that went away and a file size limit are errors to report, like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    LinuxDesktop::Store store;
    DefaultsTool::Outcome outcome = DefaultsTool::run(store, std::vector<std::string>(argv + 1, argv + argc));
    if (!outcome.message.empty())
        LinuxDesktop::complain(outcome.message);
    LinuxDesktop::FileOperations files;
    if (!LinuxDesktop::writeAll(files, STDOUT_FILENO, outcome.output)) {
        LinuxDesktop::complain("cannot write to", "standard output", errno);
        outcome.status = DefaultsTool::ExitStatus::Failed;
    }
    // Without the store's end: what could not be stored is not tried again behind the answer's back.
    std::_Exit(static_cast<int>(outcome.status));
}
