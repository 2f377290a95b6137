// Finds the duplicates among 20,000 files of 2 GB, half of which have some, beside the programs that do only that:
// with the files in memory, and with none of their bytes there. Every program runs in turn, and the medians are
// compared. The files lie in a folder of the bench's own, which is gone afterwards: in the folder that is its
// argument, else where temporary files go that may be large.
#include "extension/actions/find-duplicate-files/DuplicateFileFinder.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace MenuExtension;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int fileCount = 20'000;
constexpr int folderCount = 200;
constexpr int warmRounds = 5;
constexpr int coldRounds = 3;

/// As the finder's listener: counts, and knows when the first group came.
class Counter : public Duplicates::Findings {
public:
    void found(std::uint64_t, std::vector<Duplicates::Item> items) override
    {
        const std::scoped_lock lock(m_mutex);
        if (m_items == 0)
            m_first = Milliseconds(Clock::now() - m_start).count();
        m_items += items.size();
    }
    void progress(const Duplicates::Progress&) override {}
    void trouble(const std::string& path, const std::string& why) override
    {
        std::fprintf(stderr, "%s %s\n", path.c_str(), why.c_str());
    }

    [[nodiscard]] std::size_t items() const { return m_items; }
    [[nodiscard]] double first() const { return m_first; }

private:
    const Clock::time_point m_start = Clock::now();
    std::mutex m_mutex;
    std::size_t m_items = 0;
    double m_first = 0;
};

/// What this program does when the bench starts it to be measured.
int find(const std::string& folder)
{
    Counter counter;
    DuplicateFileFinder finder({folder}, [](const std::string& path, int flags) {
        return LinuxDesktop::FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC));
    });
    finder.find(counter, {});
    std::printf("%zu %f\n", counter.items(), counter.first());
    return EXIT_SUCCESS;
}

class Files {
public:
    explicit Files(const fs::path& place) : m_folder((place / "orvik-bench-XXXXXX").native())
    {
        if (!::mkdtemp(m_folder.data())) {
            std::perror(m_folder.c_str());
            std::exit(EXIT_FAILURE);
        }
        for (int number = 0; number < folderCount; ++number)
            fs::create_directory(fs::path(m_folder) / std::to_string(number));
    }
    ~Files() { fs::remove_all(m_folder); }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    void make()
    {
        std::vector<fs::path> names;
        for (int number = 0; number < fileCount; ++number)
            names.push_back(fs::path(m_folder) / std::to_string(number % folderCount) / std::to_string(number));
        std::ranges::shuffle(names, m_random);
        while (names.size() > fileCount / 2) {
            // Two to five that are the same.
            const std::string content = noise();
            for (auto copies = 2 + m_random() % 4; copies > 0 && names.size() > fileCount / 2; --copies)
                write(names, content);
        }
        m_duplicates = fileCount - names.size();
        while (!names.empty()) {
            // Alone, some of them of the same size as another that differs in one place.
            std::string content = noise();
            write(names, content);
            if (names.empty() || m_random() % 2 == 0)
                continue;
            const std::array<std::size_t, 3> places{0, content.size() / 2, content.size() - 1};
            char& byte = content[places[m_random() % places.size()]];
            byte = static_cast<char>(byte ^ 1);
            write(names, content);
        }
    }

    /// Lets the system forget what the files hold; of other files it forgets nothing.
    void makeCold() const
    {
        for (const auto& entry : fs::recursive_directory_iterator(m_folder)) {
            if (!entry.is_regular_file())
                continue;
            const LinuxDesktop::FileDescriptor file(::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC));
            ::fdatasync(file.get());
            ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_DONTNEED);
        }
    }

    [[nodiscard]] const std::string& folder() const { return m_folder; }
    [[nodiscard]] std::size_t duplicates() const { return m_duplicates; }
    [[nodiscard]] double gigabytes() const { return m_bytes / 1e9; }

private:
    std::string noise()
    {
        // As files are: many small ones, few large ones.
        const double size = 1024.0 * std::pow(660.0, std::uniform_real_distribution(0.0, 1.0)(m_random));
        std::string content(static_cast<std::size_t>(size), '\0');
        for (char& byte : content)
            byte = static_cast<char>(m_random());
        return content;
    }
    void write(std::vector<fs::path>& names, const std::string& content)
    {
        std::ofstream(names.back(), std::ios::binary) << content;
        names.pop_back();
        m_bytes += static_cast<double>(content.size());
    }

    std::string m_folder;
    std::mt19937_64 m_random{42};
    std::size_t m_duplicates = 0;
    double m_bytes = 0;
};

struct Run {
    double milliseconds = 0;
    double megabytes = 0;
    std::string output;
};

struct Rival {
    std::string name;
    std::vector<std::string> command;
    std::vector<double> taken = {};
    double megabytes = 0;
};

Run run(const std::vector<std::string>& command, const std::string& folder)
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        std::exit(EXIT_FAILURE);
    const auto begin = Clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char*> arguments;
        for (const std::string& word : command)
            arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(const_cast<char*>(folder.c_str()));
        arguments.push_back(nullptr);
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(pipe[1], STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        // Some write their reports where they are.
        if (::chdir("/") == 0)
            ::execvp(arguments.front(), arguments.data());
        ::_exit(127);
    }
    ::close(pipe[1]);
    Run result;
    std::array<char, 65'536> buffer{};
    for (ssize_t count = 0; (count = ::read(pipe[0], buffer.data(), buffer.size())) > 0;) {
        if (result.output.size() < buffer.size())
            result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    ::close(pipe[0]);
    int status = 0;
    rusage usage = {};
    ::wait4(child, &status, 0, &usage);
    result.milliseconds = Milliseconds(Clock::now() - begin).count();
    result.megabytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return result;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void compare(const Files& files, std::vector<Rival> rivals, bool isCold, int rounds)
{
    double first = 0;
    for (int round = isCold ? 1 : 0; round <= rounds; ++round) {
        for (Rival& rival : rivals) {
            if (isCold)
                files.makeCold();
            const Run result = run(rival.command, files.folder());
            // The first round only brings the files into memory.
            if (round == 0)
                continue;
            rival.taken.push_back(result.milliseconds);
            rival.megabytes = std::max(rival.megabytes, result.megabytes);
            if (&rival != &rivals.front())
                continue;
            std::size_t items = 0;
            if (std::sscanf(result.output.c_str(), "%zu %lf", &items, &first) != 2 || items != files.duplicates()) {
                std::fprintf(stderr, "found %zu of %zu\n", items, files.duplicates());
                std::exit(EXIT_FAILURE);
            }
        }
    }
    const double own = median(rivals.front().taken);
    std::printf("%s\n", isCold ? "With none of their bytes in memory:" : "With the files in memory:");
    for (const Rival& rival : rivals)
        std::printf("  %-28s %8.0f ms %6.2f times ours %7.1f MB\n", rival.name.c_str(), median(rival.taken),
                    median(rival.taken) / own, rival.megabytes);
    std::printf("  our first group after %.0f ms\n", first);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && std::string(argv[1]) == "--find")
        return find(argv[2]);
    Files files(argc > 1 ? argv[1] : "/var/tmp");
    files.make();
    std::printf("%d files, %.2f GB, %zu of them with duplicates\n", fileCount, files.gigabytes(), files.duplicates());
    const std::string self = fs::read_symlink("/proc/self/exe");
    const std::vector<Rival> rivals{
        {"ours", {self, "--find"}},
        {"rmlint", {"rmlint", "--types=duplicates", "--no-with-color", "-o", "summary:stdout"}},
        {"jdupes", {"jdupes", "-r", "-q"}},
        {"jdupes, trusting its hash", {"jdupes", "-r", "-q", "-Q"}},
        {"rdfind", {"rdfind", "-dryrun", "true", "-makeresultsfile", "false"}},
        {"fdupes", {"fdupes", "-r", "-q"}},
    };
    compare(files, rivals, false, warmRounds);
    compare(files, rivals, true, coldRounds);
}
