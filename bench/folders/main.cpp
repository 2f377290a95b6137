// Measures the folders screen with more and more folders in the suite, each number in a process of its own: how long
// the tab takes from the click to painted rows, how much memory that costs, how many row views scrolling makes, and
// how long a click on a checkbox takes, against a raw write of the same file.
#include "app/ApplicationClasses.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/bus/ApplicationName.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/scenes/RowList.h"
#include "platform/linux/scenes/RowWidget.h"
#include "platform/linux/scenes/TabPages.h"
#include "registry/ControllerRegistry.h"
#include "settings/Deployment.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabBar>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace LinuxDesktop;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int toggles = 21;
constexpr int foldersTab = 1;

double residentMegabytes()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            double kibibytes = 0;
            status >> kibibytes;
            return kibibytes / 1024.0;
        }
    }
    return 0.0;
}

void storeFolders(NS::UserDefaults& suite, int count)
{
    NS::Value::Array paths;
    for (int number = 0; number < count; ++number)
        paths.emplace_back("/home/someone/Documents/Projects/Folder number " + std::to_string(number));
    suite.setValue_forKeyPath(std::move(paths), Settings::foldersArray.key);
    suite.setValue_forKeyPath(NS::Value::Array(static_cast<std::size_t>(count), NS::Value(1)),
                              Settings::foldersArraystate.key);
    suite.synchronize();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

template<class Work>
double medianMilliseconds(Work work)
{
    std::vector<double> taken;
    for (int round = 0; round < toggles; ++round) {
        const auto begin = Clock::now();
        work();
        taken.push_back(Milliseconds(Clock::now() - begin).count());
    }
    return median(taken);
}

/// What writing the suite's bytes costs by itself: write, flush, rename, flush the folder.
double rawWriteMilliseconds(const std::string& folder)
{
    const std::string path = folder + "/orvik-menu/" + std::string(Deployment::suiteName) + ".plist";
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const std::string target = folder + "/raw";
    return medianMilliseconds([&] {
        const std::string temporary = target + ".new";
        const int descriptor = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        if (write(descriptor, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            std::abort();
        fsync(descriptor);
        close(descriptor);
        std::filesystem::rename(temporary, target);
        const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        fsync(directory);
        close(directory);
    });
}

struct Figures {
    double openMilliseconds = 0;
    double megabytes = 0;
    int rowViewsMadeByScrolling = 0;
    double toggleMilliseconds = 0;
    double rawMilliseconds = 0;
};

void click(QWidget& widget, QPoint place)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

TabPages& startPanel(LinuxPlatform& platform)
{
    platform.standardUserDefaults().setBool_forKey(true, Settings::firstRun.key);
    platform.loadDelegate().applicationWillFinishLaunching();
    QApplication::processEvents();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* tabs = window->findChild<TabPages*>())
            return *tabs;
    }
    std::abort();
}

Figures measure(int count, const std::string& folder)
{
    ControllerRegistry registry;
    const NS::ClassTable classes = applicationClasses(registry);
    SessionBus bus("");
    ApplicationName name(bus, Deployment::applicationIdentifier);
    LinuxPlatform platform(classes, QStringLiteral(ORVIK_RESOURCES), bus, name);
    NS::installPlatform(&platform);
    storeFolders(*platform.userDefaultsWithSuiteName(Deployment::suiteName), count);
    // Opens on the menu items, which warm up what every list needs.
    TabPages& tabs = startPanel(platform);
    QTabBar& tabBar = *tabs.tabBar();

    Figures figures;
    const double megabytesBefore = residentMegabytes();
    const auto begin = Clock::now();
    click(tabBar, tabBar.tabRect(foldersTab).center());
    QApplication::processEvents();
    figures.openMilliseconds = Milliseconds(Clock::now() - begin).count();
    figures.megabytes = residentMegabytes() - megabytesBefore;

    auto& list = *tabs.currentWidget()->findChild<RowList*>();
    const auto rowViews = [&] { return static_cast<int>(list.findChildren<RowWidget*>().size()); };
    QScrollBar& bar = *list.verticalScrollBar();
    bar.setValue(bar.maximum());
    // One more row than fits may show in part from here on.
    const int rowViewsBefore = rowViews();
    for (int step = 0; step <= 200; ++step) {
        bar.setValue(bar.maximum() * step / 200);
        QApplication::processEvents();
    }
    figures.rowViewsMadeByScrolling = rowViews() - rowViewsBefore;

    bar.setValue(0);
    auto& checkbox = dynamic_cast<QWidget&>(*list.rowsInSight().first()->checkBox());
    figures.toggleMilliseconds = medianMilliseconds([&] { click(checkbox, checkbox.rect().center()); });
    figures.rawMilliseconds = rawWriteMilliseconds(folder);
    delete tabs.window();
    NS::installPlatform(nullptr);
    return figures;
}

/// In a process of its own, so that memory is counted afresh.
Figures measureApart(const char* program, int count)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        execl(program, program, std::to_string(count).c_str(), nullptr);
        std::abort();
    }
    close(ends[1]);
    Figures figures;
    std::FILE* answers = fdopen(ends[0], "r");
    if (std::fscanf(answers, "%lf %lf %d %lf %lf", &figures.openMilliseconds, &figures.megabytes,
                    &figures.rowViewsMadeByScrolling, &figures.toggleMilliseconds, &figures.rawMilliseconds) != 5)
        std::abort();
    std::fclose(answers);
    waitpid(child, nullptr, 0);
    return figures;
}

int answerForOne(int count, int argc, char** argv)
{
    std::string folder = (std::filesystem::temp_directory_path() / "orvik-bench-folders-XXXXXX").string();
    if (!mkdtemp(folder.data()))
        return EXIT_FAILURE;
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    Figures figures;
    {
        const QApplication application(argc, argv);
        figures = measure(count, folder);
    }
    std::filesystem::remove_all(folder);
    std::printf("%f %f %d %f %f\n", figures.openMilliseconds, figures.megabytes, figures.rowViewsMadeByScrolling,
                figures.toggleMilliseconds, figures.rawMilliseconds);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1)
        return answerForOne(std::atoi(argv[1]), argc, argv);
    double toggleOfTen = 0;
    std::puts("  folders   open (ms)   memory (MiB)   row views made   toggle (ms)   raw write (ms)   bound (ms)");
    for (const int count : {10, 100, 1'000, 10'000, 100'000}) {
        const Figures figures = measureApart("/proc/self/exe", count);
        if (count == 10)
            toggleOfTen = figures.toggleMilliseconds;
        // Three times what ten folders cost, and the raw write of this file.
        const double bound = 3 * toggleOfTen + figures.rawMilliseconds;
        std::printf("  %7d %11.1f %14.1f %16d %13.2f %16.2f %12.2f\n", count, figures.openMilliseconds,
                    figures.megabytes, figures.rowViewsMadeByScrolling, figures.toggleMilliseconds,
                    figures.rawMilliseconds, bound);
    }
    return EXIT_SUCCESS;
}
