#pragma once

#include "platform/Value.h"
#include "platform/linux/store/Domain.h"
#include "platform/linux/store/Store.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace DefaultsTests {

/// Where a test's files lie. In memory, where there is such a place, they are never waited for.
enum class Place { Disk, Memory };

/// A folder of its own for a test, removed with everything in it.
class TemporaryFolder {
public:
    explicit TemporaryFolder(Place place = Place::Disk);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] std::string operator/(std::string_view name) const { return m_path + "/" + std::string(name); }

private:
    std::string m_path;
};

/// A settings folder with one domain in it.
class SettingsTest {
public:
    static constexpr std::string_view domainName = "org.example.settings";

    explicit SettingsTest(Place place = Place::Disk) : m_folder(place) {}

    [[nodiscard]] const std::string& root() const { return m_folder.path(); }
    [[nodiscard]] std::string folder() const { return m_folder / "orvik-menu"; }
    [[nodiscard]] std::string file(std::string_view suffix = "") const;
    /// The names in the settings folder that begin with the file's name and `suffix`, sorted.
    [[nodiscard]] std::vector<std::string> files(std::string_view suffix = "") const;
    void makeFolder() const;
    /// Puts `values` there through a store of its own.
    void store(const NS::Value::Dictionary& values) const;
    /// The domain, its file changed through `files`. Writes and makes its copy at once, on the thread that asks.
    [[nodiscard]] std::shared_ptr<LinuxDesktop::Domain>
    writingAtOnce(std::shared_ptr<LinuxDesktop::FileOperations> files) const;
    /// What a process that starts now finds.
    [[nodiscard]] std::optional<NS::Value> stored(std::string_view key) const;

private:
    TemporaryFolder m_folder;
};

[[nodiscard]] std::string readFile(const std::string& path);
/// In place, as a shell's redirection does.
void writeFile(const std::string& path, std::string_view bytes);
/// A property list with this inside its root element.
[[nodiscard]] std::string propertyList(std::string_view inside);

struct ProcessResult {
    /// The exit status, or 128 and the signal's number.
    int status = 0;
    std::string output;
    std::string errors;
};
/// Runs a program with `input` as its standard input and `environment` laid over this process's.
[[nodiscard]] ProcessResult runProcess(const std::vector<std::string>& command, std::string_view input = {},
                                       const std::vector<std::string>& environment = {});
[[nodiscard]] ProcessResult runPython(const std::string& script, std::string_view input = {});

/// Runs `body` in a child process and gives its standard error; the status is 0 when it returned true.
[[nodiscard]] ProcessResult inChild(const std::function<bool()>& body);
/// From now on permissions count for this process: root becomes nobody. `folder` is handed over to it.
void obeyPermissions(const std::string& folder);

/// Waits until `condition` holds, at most `longest`.
[[nodiscard]] bool holdsWithin(std::chrono::milliseconds longest, const std::function<bool()>& condition);

/// A value in words that other languages can produce too.
[[nodiscard]] std::string describe(const NS::Value& value);

} // namespace DefaultsTests
