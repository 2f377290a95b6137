#include "extension/bus/Handles.h"
#include "extension/bus/OpenBus.h"
#include "extension/companion/Companion.h"
#include "extension/companion/RunCommand.h"
#include "extension/companion/StatusReport.h"
#include "platform/linux/language/Catalogue.h"
#include "platform/linux/store/SettingsFolder.h"
#include "platform/linux/system/Complaint.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace {

using namespace MenuExtension;
using LinuxDesktop::complain;

constexpr int exitUsage = 2;

constexpr const char* usage = R"(Usage: orvik-menu-extension [OPTION]
The companion that Orvik Menu's control panel configures. It runs in the
background of the session until it is asked to end.

  --run ACTION PATH...
             have the companion that runs do an action, as a file manager's
             menu does
  --status   print whether the companion runs and how far the menu has come in
             each file manager
  --help     print this text
  --version  print the version
)";

int cannot(const std::string& what, int negativeError)
{
    complain(what + ": " + std::generic_category().message(-negativeError));
    return EXIT_FAILURE;
}

/// Each of them ends the loop with status 0.
int addEndings(sd_event& event)
{
    for (const int ending : {SIGTERM, SIGINT, SIGHUP}) {
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, ending);
        sigprocmask(SIG_BLOCK, &signals, nullptr);
        const int result = sd_event_add_signal(&event, nullptr, ending, nullptr, nullptr);
        if (result < 0)
            return result;
    }
    return 0;
}

int run()
{
    std::error_code error;
    LinuxDesktop::useCatalogue(std::filesystem::read_symlink("/proc/self/exe", error).parent_path());
    const auto folder = LinuxDesktop::settingsFolder();
    if (!folder) {
        complain("no home folder is known");
        return EXIT_FAILURE;
    }
    sd_event* made = nullptr;
    int result = sd_event_new(&made);
    const Event event(made);
    if (result >= 0)
        result = addEndings(*event);
    if (result < 0)
        return cannot("the event loop cannot be made", result);

    const Bus bus = openSessionBus();
    if (!bus) {
        complain("there is no session bus");
        return EXIT_FAILURE;
    }
    Companion companion(*event, *bus, *folder);
    result = companion.start();
    if (result == -EEXIST) {
        complain("it is running already");
        return EXIT_SUCCESS;
    }
    if (result >= 0)
        result = sd_bus_attach_event(bus.get(), event.get(), SD_EVENT_PRIORITY_NORMAL);
    if (result < 0)
        return cannot("the session bus cannot be used", result);
    result = sd_event_loop(event.get());
    return result < 0 ? cannot("the event loop failed", result) : result;
}

} // namespace

int main(int argc, char** argv)
{
    // A reader of standard error that went away is no reason to end.
    std::signal(SIGPIPE, SIG_IGN);

    if (argc > 1) {
        const std::string_view argument = argv[1];
        if (argc > 3 && argument == "--run")
            return runAction(argv[2], {argv + 3, argv + argc});
        if (argc == 2 && argument == "--status")
            return tellStatus();
        if (argc == 2 && argument == "--help") {
            std::fputs(usage, stdout);
            return EXIT_SUCCESS;
        }
        if (argc == 2 && argument == "--version") {
            std::puts("orvik-menu-extension " ORVIK_VERSION);
            return EXIT_SUCCESS;
        }
        if (argument == "--run") {
            std::fprintf(stderr, "orvik-menu-extension: --run takes an action and a path\n%s", usage);
            return exitUsage;
        }
        const char* wrong = argc > 2 ? argv[2] : argv[1];
        std::fprintf(stderr, "orvik-menu-extension: unknown argument: %s\n%s", wrong, usage);
        return exitUsage;
    }
    return run();
}
