// Finds the duplicates among 20,000 files of 2 GB, half of which have some, beside the programs that do only that:
// with the files in memory, and with none of their bytes there.
//   orvik-bench-duplicates [FOLDER [FILES]]   in a folder of its own in FOLDER, else where temporary files go that
//   may
//                                             be large; so many files
#include "bench/rivals/Rivals.h"
#include "extension/actions/find-duplicate-files/DuplicateFileFinder.h"

#include <algorithm>
#include <array>
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
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace MenuExtension;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int usualCount = 20'000;
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
    Files(const fs::path& place, int count) : m_place(place), m_count(count)
    {
        for (int number = 0; number < folderCount; ++number)
            fs::create_directory(m_place.path() / std::to_string(number));
    }

    void make()
    {
        std::vector<fs::path> names;
        for (int number = 0; number < m_count; ++number)
            names.push_back(m_place.path() / std::to_string(number % folderCount) / std::to_string(number));
        std::ranges::shuffle(names, m_random);
        while (names.size() > static_cast<std::size_t>(m_count) / 2) {
            // Two to five that are the same.
            const std::string content = noise();
            for (auto copies = 2 + m_random() % 4; copies > 0 && names.size() > static_cast<std::size_t>(m_count) / 2;
                 --copies)
                write(names, content);
        }
        m_duplicates = static_cast<std::size_t>(m_count) - names.size();
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
        for (const auto& entry : fs::recursive_directory_iterator(m_place.path())) {
            if (!entry.is_regular_file())
                continue;
            const LinuxDesktop::FileDescriptor file(::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC));
            ::fdatasync(file.get());
            ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_DONTNEED);
        }
    }

    [[nodiscard]] const fs::path& folder() const { return m_place.path(); }
    [[nodiscard]] int count() const { return m_count; }
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

    Rivals::Folder m_place;
    int m_count;
    std::mt19937_64 m_random{42};
    std::size_t m_duplicates = 0;
    double m_bytes = 0;
};

struct Found {
    std::size_t items = 0;
    double first = 0;
};

/// What find() printed; ends the bench where it is not all that there is.
Found foundBy(const Rivals::Measured& result, const Files& files)
{
    Found found;
    if (std::sscanf(result.output.c_str(), "%zu %lf", &found.items, &found.first) != 2 ||
        found.items != files.duplicates()) {
        std::fprintf(stderr, "found %zu of %zu\n", found.items, files.duplicates());
        std::exit(EXIT_FAILURE);
    }
    return found;
}

void compare(const Files& files, const std::vector<Rivals::Program>& programs, bool isCold, int rounds,
             const fs::path& place)
{
    Found found;
    const auto before = [&] {
        if (isCold)
            files.makeCold();
    };
    std::printf("%s\n", isCold ? "With none of their bytes in memory:" : "With the files in memory:");
    Rivals::compare(programs, rounds, place, before,
                    [&](const Rivals::Measured& result) { found = foundBy(result, files); });
    std::printf("  our first group after %.0f ms\n", found.first);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && std::string(argv[1]) == "--find")
        return find(argv[2]);
    const fs::path place = argc > 1 ? argv[1] : "/var/tmp";
    Files files(place, argc > 2 ? std::stoi(argv[2]) : usualCount);
    files.make();
    std::printf("%d files, %.2f GB, %zu of them with duplicates\n", files.count(), files.gigabytes(),
                files.duplicates());
    const std::string self = fs::read_symlink("/proc/self/exe");
    const std::string folder = files.folder();
    // None is given a name for a report: some put their file in the place of what is there.
    const std::vector<Rivals::Program> programs{
        {"ours", {self, "--find", folder}},
        {"rmlint", {"rmlint", "--types=duplicates", "--no-with-color", "-o", "summary:stdout", folder}},
        {"jdupes", {"jdupes", "-r", "-q", folder}},
        {"jdupes, trusting its hash", {"jdupes", "-r", "-q", "-Q", folder}},
        {"rdfind", {"rdfind", "-dryrun", "true", "-makeresultsfile", "false", folder}},
        {"fdupes", {"fdupes", "-r", "-q", folder}},
    };
    compare(files, programs, false, warmRounds, place);
    compare(files, programs, true, coldRounds, place);
}
