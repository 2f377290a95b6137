#pragma once

#include "../bus/PrivateBus.h"
#include "platform/Value.h"

#include <QProcess>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// How an action is run.
struct ActionOptions {
    bool background = false;
    std::string caller = {};
    /// What the process does to itself before it becomes the action.
    std::function<void()> before = {};
};

/// Actions that run with a bus, a home, settings and programs of their own. One folder is listed.
class ActionTest : public testing::Test {
protected:
    using Path = std::filesystem::path;
    using Paths = std::vector<Path>;
    using Options = ActionOptions;

    /// What an action says in the end.
    struct Answer {
        /// '0' done, '1' failed, '2' does not apply; '-' where there is no answer.
        char kind = '-';
        std::string words;
        friend bool operator==(const Answer&, const Answer&) = default;
    };
    inline static const Answer done{'0', {}};

    ActionTest();
    ~ActionTest() override;

    /// Runs an action on the paths, to its end.
    Answer run(const char* action, const Paths& paths, const Options& options = {});
    /// The same with any arguments and standard input.
    Answer runWith(const char* action, const QStringList& arguments, const QByteArray& input,
                   const std::function<void()>& before = {});
    /// Runs an action several times at once, each on paths of its own.
    std::vector<Answer> runAtOnce(const char* action, const std::vector<Paths>& requests,
                                  const Options& options = {});

    /// For the actions that are started from now on.
    void setEnvironment(const char* name, const std::string& value) { m_environment[name] = value; }

    /// Makes a program of that name, which notes how it was started and ends with the status. It prints `output`.
    void makeProgram(const std::string& name, int status = 0, const std::string& output = {});
    /// The same for the control panel that is installed with the actions.
    void makePanel() { makeProgramAt(m_root / "bin/orvik-menu", 0, {}); }
    /// How a program was started at last.
    struct Start {
        std::vector<std::string> arguments;
        std::string folder;
        std::string token;
    };
    /// Waits until the program has been started; empty where it never is.
    Start startOf(const std::string& name) { return startOfProgramAt(m_root / "path" / name); }
    Start startOfPanel() { return startOfProgramAt(m_root / "bin/orvik-menu"); }
    [[nodiscard]] bool wasStarted(const std::string& name) const;
    [[nodiscard]] bool panelWasStarted() const;

    /// The folder that is listed and active.
    [[nodiscard]] const Path& listed() const { return m_listed; }
    /// One that is not.
    [[nodiscard]] const Path& outside() const { return m_outside; }
    /// Makes a file in the listed folder; gives its path.
    Path file(const std::string& name, const std::string& content = {}) const;
    /// The same for a folder.
    Path folder(const std::string& name) const;
    /// The names in a folder, sorted.
    [[nodiscard]] static std::vector<std::string> namesIn(const Path& folder);

    /// Replaces the shared suite, or adds to it.
    void storeFolders(const std::vector<std::pair<std::string, bool>>& folders) const;
    void store(const std::string& key, const NS::Value& value) const;
    [[nodiscard]] std::optional<NS::Value> stored(const std::string& key) const;
    [[nodiscard]] Path settingsFolder() const { return m_root / "config/orvik-menu"; }

    [[nodiscard]] const QByteArray& busAddress() const { return m_bus.address(); }

    /// Names that a careless program takes for something else.
    static const std::vector<std::string> hostileNames;
    /// For Options::before: the rights of a folder count for this process too.
    static void obeyRights();
    /// The same: no file can be written.
    static void forbidWriting();

private:
    std::unique_ptr<QProcess> start(const char* action, const QStringList& arguments, const QByteArray& input,
                                    const std::function<void()>& before);
    static Answer answerOf(QProcess& process);
    void makeProgramAt(const Path& path, int status, const std::string& output) const;
    static Start startOfProgramAt(const Path& path);

    QTemporaryDir m_folder;
    const Path m_root = m_folder.path().toStdString();
    const Path m_listed = m_root / "home/listed";
    const Path m_outside = m_root / "home/outside";
    PrivateBus m_bus;
    std::map<std::string, std::string> m_environment;
};
