#include "ActionTest.h"

#include "../bus/Waiting.h"
#include "platform/linux/store/Store.h"
#include "settings/Deployment.h"
#include "settings/Settings.h"
#include "support/Files.h"

#include <algorithm>
#include <csignal>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <system_error>

namespace fs = std::filesystem;

const std::vector<std::string> ActionTest::hostileNames{
    "a\nb",       "it's \"quoted\"", "-rf",  "--background",        "$(touch x)", "`touch x`",
    "100%s%20%n", "\xff\xfe\x80",    " ",    "back\\slash",         "a;b&c|d",    "caf\xC3\xA9 cafe\xCC\x81",
    "*?[a]#frag", "\x1b[31mred",     "\t\r", std::string(255, 'n'),
};

ActionTest::ActionTest()
{
    for (const char* name : {"bin", "config", "home/listed", "home/outside", "path", "runtime"})
        fs::create_directories(m_root / name);
    // An action looks for the panel beside itself.
    fs::create_directories(m_root / "libexec");
    fs::copy(ORVIK_ACTION_PROGRAMS, m_root / "libexec/orvik-menu");
    storeFolders({{m_listed, true}});
    m_environment = {{"HOME", m_root / "home"},
                     {"PATH", m_root / "path"},
                     {"XDG_CONFIG_HOME", m_root / "config"},
                     {"XDG_RUNTIME_DIR", m_root / "runtime"},
                     {"XDG_CURRENT_DESKTOP", ""},
                     {"XDG_ACTIVATION_TOKEN", "token-1"},
                     {"DBUS_SESSION_BUS_ADDRESS", m_bus.address().toStdString()}};
}

ActionTest::~ActionTest()
{
    // The toolkit's own folder keeps files whose names are no text.
    std::error_code ignored;
    fs::remove_all(m_root, ignored);
}

std::unique_ptr<QProcess> ActionTest::start(const char* action, const QStringList& arguments, const QByteArray& input,
                                            const std::function<void()>& before)
{
    auto process = std::make_unique<QProcess>();
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : m_environment)
        environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setChildProcessModifier([before] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (before)
            before();
    });
    process->start(QString::fromStdString(m_root / "libexec/orvik-menu" / action), arguments);
    process->write(input);
    process->closeWriteChannel();
    return process;
}

ActionTest::Answer ActionTest::answerOf(QProcess& process)
{
    EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    const std::string output = process.readAllStandardOutput().toStdString();
    if (output.empty())
        return {};
    EXPECT_EQ(process.exitCode(), output.front() == '0' ? 0 : 1);
    return {output.front(), output.substr(1)};
}

namespace {

QStringList argumentsFor(bool background, const std::string& caller)
{
    QStringList arguments;
    if (background)
        arguments << QStringLiteral("--background");
    if (!caller.empty())
        arguments << QStringLiteral("--caller") << QString::fromStdString(caller);
    return arguments;
}

QByteArray inputFor(const std::vector<fs::path>& paths)
{
    QByteArray input;
    for (const auto& path : paths)
        input.append(path.c_str(), static_cast<qsizetype>(path.native().size() + 1));
    return input;
}

} // namespace

ActionTest::Answer ActionTest::run(const char* action, const Paths& paths, const Options& options)
{
    return runWith(action, argumentsFor(options.background, options.caller), inputFor(paths), options.before);
}

ActionTest::Answer ActionTest::runWith(const char* action, const QStringList& arguments, const QByteArray& input,
                                       const std::function<void()>& before)
{
    return answerOf(*start(action, arguments, input, before));
}

std::vector<ActionTest::Answer> ActionTest::runAtOnce(const char* action, const std::vector<Paths>& requests,
                                                      const Options& options)
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const Paths& paths : requests)
        processes.push_back(
            start(action, argumentsFor(options.background, options.caller), inputFor(paths), options.before));
    std::vector<Answer> answers;
    for (const auto& process : processes)
        answers.push_back(answerOf(*process));
    return answers;
}

void ActionTest::makeProgram(const std::string& name, int status, const std::string& output)
{
    makeProgramAt(m_root / "path" / name, status, output);
}

void ActionTest::makeProgramAt(const Path& path, int status, const std::string& output) const
{
    const std::string log = path.native() + ".start";
    const std::string part = log + ".part";
    Files::write(path, "#!/bin/sh\n"
                       "{ pwd -P; printf '\\0%s' \"$XDG_ACTIVATION_TOKEN\" \"$@\"; } > '" +
                           part + "'\n/bin/mv '" + part + "' '" + log + "'\nprintf '%s' '" + output + "'\nexit " +
                           std::to_string(status) + '\n');
    fs::permissions(path, fs::perms::owner_all);
}

ActionTest::Start ActionTest::startOfProgramAt(const Path& path)
{
    const Path log = path.native() + ".start";
    EXPECT_TRUE(waitUntil([&] { return fs::exists(log); })) << path << " was not started";
    const std::string text = Files::read(log);
    fs::remove(log);
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\0', begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    if (parts.size() < 2)
        return {};
    // The line's end that pwd prints.
    parts[0].pop_back();
    return {{parts.begin() + 2, parts.end()}, parts[0], parts[1]};
}

bool ActionTest::wasStarted(const std::string& name) const
{
    return fs::exists(m_root / "path" / (name + ".start"));
}

bool ActionTest::panelWasStarted() const
{
    return fs::exists(m_root / "bin/orvik-menu.start");
}

ActionTest::Path ActionTest::file(const std::string& name, const std::string& content) const
{
    Files::write(m_listed / name, content);
    return m_listed / name;
}

ActionTest::Path ActionTest::folder(const std::string& name) const
{
    fs::create_directories(m_listed / name);
    return m_listed / name;
}

std::vector<std::string> ActionTest::namesIn(const Path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

void ActionTest::storeFolders(const std::vector<std::pair<std::string, bool>>& folders) const
{
    NS::Value::Array paths;
    NS::Value::Array states;
    for (const auto& [path, active] : folders) {
        paths.emplace_back(path);
        states.emplace_back(active ? 1 : 0);
    }
    store(std::string(Settings::foldersArray.key), paths);
    store(std::string(Settings::foldersArraystate.key), states);
}

void ActionTest::store(const std::string& key, const NS::Value& value) const
{
    LinuxDesktop::Store store(settingsFolder());
    const auto suite = store.open(Deployment::suiteName);
    ASSERT_TRUE(suite);
    suite->setObject_forKey(value, key);
    ASSERT_TRUE(suite->synchronize());
}

std::optional<NS::Value> ActionTest::stored(const std::string& key) const
{
    LinuxDesktop::Store store(settingsFolder());
    return store.open(Deployment::suiteName)->objectForKey(key);
}

void ActionTest::obeyRights()
{
    // A process of the superuser gets it back otherwise when it becomes another program.
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
}

void ActionTest::forbidWriting()
{
    const rlimit nothing{0, 0};
    ::setrlimit(RLIMIT_FSIZE, &nothing);
}
