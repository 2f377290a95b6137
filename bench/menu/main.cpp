// Measures how long a menu takes to be made of the settings and a selection, as a file manager asks for it, against
// comparing the path with each of the listed folders, as a search through all of them would.

#include "extension/menu/Menu.h"
#include "settings/MenuCatalogue.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace MenuExtension;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int rounds = 100'000;
constexpr int customFolders = 200;

std::vector<Folder> folders(int count)
{
    std::vector<Folder> listed;
    for (int number = 0; number < count; ++number)
        listed.push_back({"/home/person/projects/number " + std::to_string(number), true});
    return listed;
}

/// Each name twice.
std::vector<Target> targets()
{
    std::vector<std::string> paths;
    for (int number = 0; number < customFolders; ++number)
        paths.push_back("/home/person/" + std::to_string(number % 2) + "/archive " + std::to_string(number / 2));
    return targetsOf(paths);
}

/// What a person's longest list of actions is.
std::vector<MenuAction> everyAction()
{
    std::vector<MenuAction> actions;
    for (const CatalogueRow& row : menuCatalogue)
        actions.push_back({std::string(row.identifier), std::string(row.title), "icon", row.appliesTo});
    return actions;
}

struct Times {
    double median;
    double slowest1In100;
};

template<class Action>
Times timesOf(const Action& action)
{
    std::vector<double> times;
    times.reserve(rounds);
    for (int round = 0; round < rounds; ++round) {
        const auto begin = Clock::now();
        action();
        times.push_back(Microseconds(Clock::now() - begin).count());
    }
    std::ranges::sort(times);
    return {times[times.size() / 2], times[times.size() * 99 / 100]};
}

void print(const char* what, const Times& times)
{
    std::printf("%-48s %6.2f us, 99th percentile %6.2f us\n", what, times.median, times.slowest1In100);
}

} // namespace

int main()
{
    const std::string path = "/home/person/projects/number 500/src/deep/below/it/main.cpp";
    const Selection one{.items = {{.path = path}}, .isBackground = false};
    std::size_t offered = 0;
    const auto makeMenuOf = [&](const MenuSettings& settings, const Selection& selection) {
        return timesOf([&] { offered += makeMenu(settings, selection).entries.size(); });
    };

    const std::vector<Folder> thousand = folders(1000);
    const MenuSettings settings{.actions = everyAction(), .scope = Scope(thousand), .targets = targets()};
    const Times menu = makeMenuOf(settings, one);
    print("A menu, 16 actions, 1,000 and 200 custom folders", menu);
    const MenuSettings larger{.actions = everyAction(), .scope = Scope(folders(10'000)), .targets = targets()};
    const Times largerMenu = makeMenuOf(larger, one);
    print("A menu, 16 actions, 10,000 and 200", largerMenu);
    const Times folderNames = timesOf([&] { offered += targets().size(); });
    print("Naming 200 custom folders after a change", folderNames);
    std::size_t seen = 0;
    const Times search = timesOf([&] {
        for (const Folder& folder : thousand)
            seen += path.starts_with(folder.path) ? 1 : 0;
    });
    print("Comparing the path with each of 1,000 folders", search);
    std::printf("%-48s %6.2f\n", "A menu / comparing with each", menu.median / search.median);
    std::printf("%-48s %6.2f\n", "10,000 folders / 1,000 folders", largerMenu.median / menu.median);
    return offered > 0 && seen > 0 ? 0 : 1;
}
