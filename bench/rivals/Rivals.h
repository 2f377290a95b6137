#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Programs that do the same, run in turn and compared by their medians.
namespace Rivals {

/// A folder of the bench's own, which is gone afterwards.
class Folder {
public:
    /// In `place`, which has room for much.
    explicit Folder(const std::filesystem::path& place);
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

struct Program {
    std::string name;
    /// With all arguments. What it writes where it was started is gone afterwards.
    std::vector<std::string> command;
};

struct Measured {
    /// Of the wall clock.
    double milliseconds = 0;
    /// Of the largest process.
    double megabytes = 0;
    /// The beginning of what it printed.
    std::string output;
};

/// Runs each in turn, `rounds` times, with `before` before every run, and prints how its median compares with the
/// first one's. `check` sees what the first one did. Ends the bench where one fails.
void compare(const std::vector<Program>& programs, int rounds, const std::filesystem::path& place,
             const std::function<void()>& before, const std::function<void(const Measured&)>& check);

} // namespace Rivals
