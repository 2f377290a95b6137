// Measures how long programs take from exec to their first mapped window, and how much memory they hold then, side
// by side in one run: the panel, a bare Qt window and a bare tabbed one. Needs a display of its own.
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto patience = std::chrono::seconds(20);
/// After the first window, until the program has nothing left to do.
constexpr auto settling = std::chrono::milliseconds(700);

struct Program {
    const char* title;
    const char* path;
    std::vector<double> milliseconds;
    std::vector<double> kibibytes;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double residentKibibytes(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            double kibibytes = 0;
            status >> kibibytes;
            return kibibytes;
        }
    }
    return 0;
}

/// Reads the server's events until a window is mapped; false when none was in time.
bool waitForWindow(xcb_connection_t* connection)
{
    const auto end = Clock::now() + patience;
    while (Clock::now() < end) {
        while (xcb_generic_event_t* event = xcb_poll_for_event(connection)) {
            const bool mapped = (event->response_type & 0x7FU) == XCB_MAP_NOTIFY;
            std::free(event);
            if (mapped)
                return true;
        }
        pollfd readable{xcb_get_file_descriptor(connection), POLLIN, 0};
        poll(&readable, 1, 100);
    }
    return false;
}

void drainEvents(xcb_connection_t* connection)
{
    // A round trip: what the last program caused has arrived after it.
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    while (xcb_generic_event_t* event = xcb_poll_for_event(connection))
        std::free(event);
}

bool measure(xcb_connection_t* connection, Program& program)
{
    drainEvents(connection);
    std::string path = program.path;
    char* arguments[] = {path.data(), nullptr};
    pid_t process = 0;
    const auto begin = Clock::now();
    if (posix_spawn(&process, program.path, nullptr, nullptr, arguments, environ) != 0)
        return false;
    const bool shown = waitForWindow(connection);
    const Milliseconds taken = Clock::now() - begin;
    std::this_thread::sleep_for(settling);
    const double kibibytes = residentKibibytes(process);
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    if (!shown)
        return false;
    program.milliseconds.push_back(taken.count());
    program.kibibytes.push_back(kibibytes);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        std::fputs("There is no display to measure on.\n", stderr);
        return EXIT_FAILURE;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);

    std::vector<Program> programs{
        {"bare window", BARE_WINDOW, {}, {}},
        {"bare tabbed window", BARE_TABBED_WINDOW, {}, {}},
        {"orvik-menu", ORVIK_MENU, {}, {}},
    };
    // The first round only warms the caches.
    for (int round = 0; round <= rounds; ++round) {
        for (Program& program : programs) {
            if (!measure(connection, program)) {
                std::fprintf(stderr, "%s showed no window.\n", program.path);
                return EXIT_FAILURE;
            }
            if (round == 0) {
                program.milliseconds.clear();
                program.kibibytes.clear();
            }
        }
    }
    xcb_disconnect(connection);

    std::printf("Median of %d rounds:\n", rounds);
    for (const Program& program : programs)
        std::printf("  %-20s %7.1f ms to the first window %9.0f KiB resident\n", program.title,
                    median(program.milliseconds), median(program.kibibytes));
    std::printf("start-up, panel / bare tabbed window: %.2f (target 1.2)\n",
                median(programs[2].milliseconds) / median(programs[1].milliseconds));
    std::printf("resident memory, panel / bare window: %.2f (target 1.4)\n",
                median(programs[2].kibibytes) / median(programs[0].kibibytes));
    return EXIT_SUCCESS;
}
