#include "Support.h"

#include "platform/linux/store/DateText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>
#include <iterator>
#include <poll.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace DefaultsTests {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(Place place)
{
    constexpr const char* memory = "/dev/shm";
    const bool inMemory = place == Place::Memory && ::access(memory, W_OK) == 0;
    std::string name = (inMemory ? fs::path(memory) : fs::temp_directory_path()) / "orvik-defaults-XXXXXX";
    if (!::mkdtemp(name.data()))
        std::abort();
    m_path = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::permissions(m_path + "/orvik-menu", fs::perms::owner_all, ignored);
    fs::remove_all(m_path, ignored);
}

std::string SettingsTest::file(std::string_view suffix) const
{
    return folder() + "/" + std::string(domainName) + ".plist" + std::string(suffix);
}

std::vector<std::string> SettingsTest::files(std::string_view suffix) const
{
    std::vector<std::string> names;
    const std::string prefix = fs::path(file(suffix)).filename();
    for (const auto& entry : fs::directory_iterator(folder()))
        if (entry.path().filename().native().starts_with(prefix))
            names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

void SettingsTest::makeFolder() const
{
    fs::create_directories(folder());
}

void SettingsTest::store(const NS::Value::Dictionary& values) const
{
    LinuxDesktop::Store store(folder());
    const auto domain = store.open(domainName);
    ASSERT_TRUE(domain);
    domain->replaceContents(values);
    ASSERT_TRUE(domain->synchronize());
}

std::shared_ptr<LinuxDesktop::Domain>
SettingsTest::writingAtOnce(std::shared_ptr<LinuxDesktop::FileOperations> files) const
{
    const auto queue = std::make_shared<LinuxDesktop::DelayedQueue>();
    queue->stop();
    return std::make_shared<LinuxDesktop::Domain>(std::move(files), queue, folder(), domainName);
}

std::optional<NS::Value> SettingsTest::stored(std::string_view key) const
{
    LinuxDesktop::Store store(folder());
    const auto domain = store.open(domainName);
    return domain ? domain->objectForKey(key) : std::nullopt;
}

std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.flush();
    ASSERT_TRUE(file.good()) << path;
}

std::string propertyList(std::string_view inside)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           std::string(inside) + "\n</plist>\n";
}

namespace {

/// A pipe whose ends close with it.
struct Pipe {
    Pipe()
    {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            std::abort();
        reading = LinuxDesktop::FileDescriptor(ends[0]);
        writing = LinuxDesktop::FileDescriptor(ends[1]);
    }
    LinuxDesktop::FileDescriptor reading;
    LinuxDesktop::FileDescriptor writing;
};

/// Forks; gives what the child writes on its streams and how it ends. The child must not return.
ProcessResult forkAndCollect(std::string_view input, const std::function<void()>& child)
{
    Pipe in;
    Pipe out;
    Pipe err;
    std::fflush(nullptr);
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(in.reading.get(), STDIN_FILENO);
        ::dup2(out.writing.get(), STDOUT_FILENO);
        ::dup2(err.writing.get(), STDERR_FILENO);
        child();
        std::abort();
    }
    in.reading.close();
    out.writing.close();
    err.writing.close();
    std::thread feeder([&] {
        LinuxDesktop::FileOperations files;
        while (!input.empty()) {
            const ssize_t count = files.write(in.writing.get(), input.data(), input.size());
            if (count <= 0)
                break;
            input.remove_prefix(static_cast<std::size_t>(count));
        }
        in.writing.close();
    });

    ProcessResult result;
    std::array<pollfd, 2> streams{{{out.reading.get(), POLLIN, 0}, {err.reading.get(), POLLIN, 0}}};
    std::array<std::string*, 2> texts{&result.output, &result.errors};
    while (streams[0].fd >= 0 || streams[1].fd >= 0) {
        ::poll(streams.data(), streams.size(), -1);
        for (std::size_t i = 0; i < streams.size(); ++i) {
            if (streams.at(i).fd < 0 || streams.at(i).revents == 0)
                continue;
            std::array<char, 65536> buffer{};
            const ssize_t count = ::read(streams.at(i).fd, buffer.data(), buffer.size());
            if (count <= 0)
                streams.at(i).fd = -1;
            else
                texts.at(i)->append(buffer.data(), static_cast<std::size_t>(count));
        }
    }
    feeder.join();
    int status = 0;
    ::waitpid(pid, &status, 0);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

} // namespace

ProcessResult runProcess(const std::vector<std::string>& command, std::string_view input,
                         const std::vector<std::string>& environment)
{
    return forkAndCollect(input, [&] {
        for (const std::string& variable : environment) {
            const auto equals = variable.find('=');
            ::setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
        }
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        ::execv(arguments[0], arguments.data());
        ::_exit(127);
    });
}

ProcessResult runPython(const std::string& script, std::string_view input)
{
    return runProcess({"/usr/bin/python3", "-c", script}, input);
}

ProcessResult inChild(const std::function<bool()>& body)
{
    return forkAndCollect({}, [&] { ::_exit(body() ? 0 : 1); });
}

void obeyPermissions(const std::string& folder)
{
    if (::geteuid() != 0)
        return;
    constexpr uid_t nobody = 65534;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (::lchown(entry.path().c_str(), nobody, nobody) != 0)
            std::abort();
    if (::lchown(folder.c_str(), nobody, nobody) != 0 || ::setgroups(0, nullptr) != 0 ||
        ::setresgid(nobody, nobody, nobody) != 0 || ::setresuid(nobody, nobody, nobody) != 0)
        std::abort();
}

bool holdsWithin(std::chrono::milliseconds longest, const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + longest;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

namespace {

std::string hexadecimal(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        constexpr std::string_view digits = "0123456789abcdef";
        text += digits[static_cast<std::uint8_t>(byte) >> 4U];
        text += digits[static_cast<std::uint8_t>(byte) & 0xfU];
    }
    return text;
}

} // namespace

std::string describe(const NS::Value& value)
{
    switch (value.kind()) {
    case NS::Value::Kind::Boolean:
        return *value.boolean() ? "true" : "false";
    case NS::Value::Kind::Integer:
        return "integer " +
               (value.integer() ? std::to_string(*value.integer()) : std::to_string(*value.largeInteger()));
    case NS::Value::Kind::Real: {
        std::array<char, 17> bits{};
        std::snprintf(bits.data(), bits.size(), "%016llx",
                      static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(*value.real())));
        return std::string("real ") + (*value.real() == *value.real() ? bits.data() : "nan");
    }
    case NS::Value::Kind::String:
        return "string " + hexadecimal(*value.string());
    case NS::Value::Kind::Date:
        return "date " + LinuxDesktop::DateText::format(*value.date()).value_or("none");
    case NS::Value::Kind::Data:
        return "data " + hexadecimal(std::string(value.data()->begin(), value.data()->end()));
    case NS::Value::Kind::Array: {
        std::string text = "[";
        for (const NS::Value& item : *value.array())
            text += describe(item) + ",";
        return text + "]";
    }
    case NS::Value::Kind::Dictionary: {
        std::string text = "{";
        for (const auto& [key, item] : *value.dictionary())
            text += hexadecimal(key) + "=" + describe(item) + ",";
        return text + "}";
    }
    }
    return {};
}

} // namespace DefaultsTests
