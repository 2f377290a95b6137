// Measures what a bridge costs its host: at the start, in memory, and each time the host asks for a menu; and how
// long a change that the companion tells takes to be in the next menu. Needs a session bus that nobody else uses. The
// host is small, but has the toolkit.

#include "CompanionStandIn.h"
#include "HostFiles.h"
#include "HostModule.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <glib-unix.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace MenuExtension;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int changes = 500;
constexpr int menus = 10'000;
constexpr int few = 10;
constexpr int many = 1000;
/// In seconds.
constexpr guint patience = 20;
/// Until nobody has anything left to do, in milliseconds.
constexpr guint settling = 20;

double millisecondsFor(const std::function<void()>& action)
{
    const auto begun = Clock::now();
    action();
    return Milliseconds(Clock::now() - begun).count();
}

double percentile(std::vector<double>& times, double share)
{
    std::ranges::sort(times);
    return times[static_cast<std::size_t>(share * static_cast<double>(times.size() - 1))];
}

/// In KiB.
long residentMemory()
{
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string word; rollup >> word;) {
        long amount = 0;
        if (word == "Rss:" && rollup >> amount)
            return amount;
    }
    return 0;
}

/// Sleeps until something happens, as a host does.
void runUntil(const std::function<bool()>& holds)
{
    const guint end = g_timeout_add_seconds(
        patience,
        [](gpointer) -> gboolean {
            std::fputs("the bridge does not follow\n", stderr);
            std::exit(EXIT_FAILURE);
        },
        nullptr);
    while (!holds())
        g_main_context_iteration(nullptr, TRUE);
    g_source_remove(end);
}

void settle()
{
    bool isOver = false;
    g_timeout_add(
        settling,
        [](gpointer over) -> gboolean {
            *static_cast<bool*>(over) = true;
            return G_SOURCE_REMOVE;
        },
        &isOver);
    runUntil([&] { return isOver; });
}

/// Sixteen actions in that many folders.
Properties properties(int folderCount)
{
    std::vector<std::string> actions;
    std::vector<Folder> folders{{"/listed"}};
    for (int number = 0; number < 16; ++number)
        actions.push_back("action-" + std::to_string(number));
    for (int number = 1; number < folderCount; ++number)
        folders.push_back({"/home/somebody/Documents/folder-" + std::to_string(number)});
    return Properties().with("Actions", Properties::actions(actions)).with("Scope", Properties::scope(folders));
}

/// A companion in a process of its own. It says few folders, and many when it is told to show a submenu or none.
class CompanionProcess {
public:
    explicit CompanionProcess(const char* busAddress)
    {
        int ends[2] = {};
        if (::pipe(ends) != 0 || (m_process = ::fork()) < 0)
            std::exit(EXIT_FAILURE);
        m_told = ends[1];
        if (m_process == 0) {
            ::close(ends[1]);
            serve(busAddress, ends[0]);
            std::_Exit(EXIT_SUCCESS);
        }
        ::close(ends[0]);
    }
    ~CompanionProcess()
    {
        ::close(m_told);
        ::waitpid(m_process, nullptr, 0);
    }
    CompanionProcess(const CompanionProcess&) = delete;
    CompanionProcess& operator=(const CompanionProcess&) = delete;

    void tell(bool inSubmenu) const
    {
        if (::write(m_told, &inSubmenu, 1) != 1)
            std::exit(EXIT_FAILURE);
    }

private:
    struct Served {
        CompanionStandIn& companion;
        bool isOver = false;
    };

    static void serve(const char* busAddress, int descriptor)
    {
        CompanionStandIn companion(busAddress);
        companion.publish(properties(few));
        companion.takeName();
        Served served{companion};
        g_unix_fd_add(
            descriptor, GIOCondition(G_IO_IN | G_IO_HUP),
            [](int from, GIOCondition, gpointer data) -> gboolean {
                auto& [told, isOver] = *static_cast<Served*>(data);
                bool inSubmenu = false;
                isOver = ::read(from, &inSubmenu, 1) != 1;
                told.publish(properties(many).with("ShowInSubmenu", inSubmenu ? "true" : "false"));
                told.announce();
                return G_SOURCE_CONTINUE;
            },
            &served);
        while (!served.isOver)
            g_main_context_iteration(nullptr, TRUE);
    }

    pid_t m_process = -1;
    int m_told = -1;
};

guint menuLength(GObject* provider, const Files& files)
{
    GList* items = TestedHost::itemsForFiles(provider, files.list());
    const guint length = g_list_length(items);
    g_list_free_full(items, &g_object_unref);
    return length;
}

} // namespace

int main()
{
    const char* address = g_getenv("DBUS_SESSION_BUS_ADDRESS");
    if (!address) {
        std::fputs("a session bus is needed\n", stderr);
        return EXIT_FAILURE;
    }
    const CompanionProcess companion(address);
    void* toolkit = ::dlopen(TestedHost::toolkit, RTLD_NOW | RTLD_GLOBAL);
    if (!toolkit)
        return EXIT_FAILURE;
    // As other parts of a file manager have done before.
    g_type_ensure(reinterpret_cast<GType (*)()>(::dlsym(toolkit, "gtk_widget_get_type"))());
    const Reference<GDBusConnection> host(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    const Files one({{"file:///listed/a/file"}});
    const Files none({});
    settle();

    const long before = residentMemory();
    GObject* provider = nullptr;
    const double start =
        millisecondsFor([&] { provider = static_cast<GObject*>(g_object_new(HostModule::providerType(), nullptr)); });
    runUntil([&] { return menuLength(provider, one) == 16; });
    settle();
    const long added = residentMemory() - before;
    companion.tell(true);
    runUntil([&] { return menuLength(provider, one) == 1; });
    settle();
    const long addedByMany = residentMemory() - before;
    companion.tell(false);
    runUntil([&] { return menuLength(provider, one) == 16; });
    std::printf("start: %.2f ms of the host's (under 5)\n", start);
    std::printf("memory: %ld KiB more with %d folders (under 300), %ld with %d\n", added, few, addedByMany, many);

    const double empty = millisecondsFor([&] {
        for (int call = 0; call < 100; ++call)
            menuLength(provider, none);
    });
    const double full = millisecondsFor([&] {
        for (int call = 0; call < 100; ++call)
            menuLength(provider, one);
    });
    std::printf("100 calls: %.2f ms with nothing selected, %.2f ms with a file (under 2)\n", empty, full);

    std::vector<double> times;
    for (int time = 0; time < menus; ++time)
        times.push_back(millisecondsFor([&] { menuLength(provider, one); }) * 1000);
    const double median = percentile(times, 0.5);
    std::printf("a menu of 16 actions in 1000 folders, items and all: %.1f us, %.1f us at the 99th percentile\n",
                median, percentile(times, 0.99));

    times.clear();
    for (int time = 0; time < changes; ++time) {
        const bool inSubmenu = time % 2 == 0;
        times.push_back(millisecondsFor([&] {
            companion.tell(inSubmenu);
            runUntil([&] { return menuLength(provider, one) == (inSubmenu ? 1U : 16U); });
        }));
        settle();
    }
    const double usual = percentile(times, 0.5);
    std::printf("a change told by the companion: %.2f ms, %.2f ms at the 99th percentile (under 10)\n", usual,
                percentile(times, 0.99));
}
