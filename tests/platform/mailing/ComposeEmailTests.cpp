#include "platform/linux/mailing/ComposeEmail.h"

#include "ShownWindows.h"

#include "../bus/PrivateBus.h"
#include "../bus/Waiting.h"
#include "platform/linux/mailing/MailText.h"
#include "platform/linux/system/FileDescriptor.h"
#include "support/Files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sys/stat.h>
#include <vector>

using namespace LinuxDesktop;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

/// Keeps its arguments' bytes, the attachments' bytes, and how it was started; "done" comes last.
const std::string mailCommandStandIn = R"(#!/bin/sh
printf '%s\0' "$@" > "$ORVIK_RECORD/arguments"
/bin/ls -l /proc/$$/fd > "$ORVIK_RECORD/descriptors"
/bin/cat /proc/$$/stat > "$ORVIK_RECORD/process"
[ -z "$ORVIK_DELAY" ] || /bin/sleep "$ORVIK_DELAY"
n=0
while [ $# -gt 0 ]; do
    case $1 in
    --attach) n=$((n + 1)); /bin/cp -- "$2" "$ORVIK_RECORD/attachment$n"; shift ;;
    esac
    shift
done
: > "$ORVIK_RECORD/done"
)";

/// Runs where xdg-email would choose a mail program, and keeps the address that this would get.
const std::string mailHook = R"(#!/bin/sh
printf '%s' "$1" > "$ORVIK_RECORD/address"
: > "$ORVIK_RECORD/done"
)";

const std::vector<std::string> hostileNames = {
    "plain.txt",
    "two words.txt",
    "-n",
    "'single' \"double\".txt",
    "$(touch pwned) `touch pwned`; touch pwned & | > < *?[a] ~ # ! {a,b}.txt",
    "100%41.txt",
    "a&attach=b?c.txt",
    "h\xc3\xa9\xe2\x82\xac.txt",
    "bytes \xff\xfe.txt",
    "line\nend.txt",
    "line end\n",
    "back\\nslash.txt",
    "comma, comma.txt",
};

struct Mail : testing::Test {
    Mail()
    {
        for (const auto* name : {"record", "bin", "runtime", "items"})
            fs::create_directory(base() / name);
        qputenv("ORVIK_RECORD", record().c_str());
        qputenv("PATH", (base() / "bin").c_str());
        qputenv("XDG_RUNTIME_DIR", (base() / "runtime").c_str());
        qunsetenv("ORVIK_DELAY");
    }
    ~Mail() override
    {
        m_portal.kill();
        m_portal.waitForFinished();
        qputenv("PATH", m_pathBefore);
        ShownWindows::closeAll();
    }

    [[nodiscard]] fs::path base() const { return m_base.path().toStdString(); }
    [[nodiscard]] fs::path record() const { return base() / "record"; }
    [[nodiscard]] fs::path runtime() const { return base() / "runtime"; }

    fs::path makeItem(const std::string& name, const std::string& content) const
    {
        Files::write(base() / "items" / name, content);
        return base() / "items" / name;
    }

    void install(const std::string& name, const std::string& text) const
    {
        Files::write(base() / "bin" / name, text);
        fs::permissions(base() / "bin" / name, fs::perms::owner_all);
    }

    void startPortal(const char* behaviour)
    {
        m_portal.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_portal.start(QStringLiteral(ORVIK_PORTAL_STAND_IN),
                       {QString::fromStdString(record().native()), QString::fromUtf8(behaviour)});
        ASSERT_TRUE(m_portal.waitForReadyRead());
        ASSERT_EQ(m_portal.readLine(), "ready\n");
    }

    void makeService(std::chrono::milliseconds archiveStay = 0ms)
    {
        m_service = composeEmailService(m_bus, archiveStay);
        ASSERT_TRUE(m_service);
    }

    void send(const fs::path& path) const { m_service->performWithItems({NS::URL::fileURLWithPath(path.native())}); }

    /// Whether the portal or the command has finished with the attachment.
    [[nodiscard]] bool arrives() const
    {
        return waitUntil([this] { return fs::exists(record() / "done"); });
    }
    [[nodiscard]] std::string recorded(const std::string& name) const { return Files::read(record() / name); }
    void forget() const
    {
        for (const auto& entry : fs::directory_iterator(record()))
            fs::remove(entry);
    }

    [[nodiscard]] std::ptrdiff_t temporaries() const
    {
        return std::distance(fs::directory_iterator(runtime()), fs::directory_iterator());
    }

    /// The one that was made of a folder.
    [[nodiscard]] fs::path archive() const
    {
        for (const auto& entry : fs::recursive_directory_iterator(runtime()))
            if (entry.path().extension() == ".zip")
                return entry.path();
        return {};
    }

    const QByteArray m_pathBefore = qgetenv("PATH");
    QTemporaryDir m_base;
    PrivateBus m_daemon;
    SessionBus m_bus{"none"};
    QProcess m_portal;
    std::unique_ptr<NS::SharingService> m_service;
};

/// The first attachment of a mail address.
std::string attachmentOf(const std::string& address)
{
    const std::string key = "attach=";
    const auto start = address.find(key) + key.size();
    const auto end = std::min(address.find('&', start), address.size());
    return QByteArray::fromPercentEncoding(QByteArray::fromStdString(address.substr(start, end - start)))
        .toStdString();
}

} // namespace

TEST_F(Mail, ReachesThePortalByteForByteWhateverTheName)
{
    startPortal("accept");
    makeService();
    for (const auto& name : hostileNames) {
        SCOPED_TRACE(name);
        const std::string content = Files::noise(100'000 + name.size());
        const auto item = makeItem(name, content);
        send(item);
        ASSERT_TRUE(arrives());
        EXPECT_TRUE(recorded("attachment1") == content);
        if (name != "bytes \xff\xfe.txt")
            EXPECT_EQ(recorded("path1"), item.native());
        else
            EXPECT_TRUE(recorded("path1").ends_with("/bytes __.txt"));
        forget();
    }
}

TEST_F(Mail, ReachesTheCommandByteForByteWhateverTheName)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    for (const auto& name : hostileNames) {
        SCOPED_TRACE(name);
        const std::string content = Files::noise(100'000 + name.size());
        send(makeItem(name, content));
        ASSERT_TRUE(arrives());
        EXPECT_TRUE(recorded("attachment1") == content);
        forget();
    }
    EXPECT_FALSE(fs::exists("pwned"));
}

TEST_F(Mail, GivesTheCommandTheItemsOwnPath)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    const auto item = makeItem("-it's $(here).txt", "text");
    send(item);
    ASSERT_TRUE(arrives());
    using namespace std::string_literals;
    EXPECT_EQ(recorded("arguments"), "--attach\0"s + item.native() + "\0"s);
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(Mail, SurvivesTheRealCommandWhateverTheName)
{
    install("xdg-email-hook.sh", mailHook);
    qputenv("PATH", QByteArray((base() / "bin").c_str()) + ":/usr/bin:/bin");
    for (const char* locale : {"C", "C.UTF-8"}) {
        qputenv("LANG", locale);
        qunsetenv("LC_ALL");
        qunsetenv("LC_CTYPE");
        makeService();
        for (const auto& name : hostileNames) {
            SCOPED_TRACE(name);
            const std::string content = Files::noise(1000 + name.size());
            send(makeItem(name, content));
            ASSERT_TRUE(arrives());
            const std::string attached = attachmentOf(recorded("address"));
            EXPECT_TRUE(Files::read(attached) == content) << attached;
            EXPECT_EQ(attached.find(','), std::string::npos) << attached;
            forget();
        }
    }
}

/// Lets variables count for a test alone.
class WithVariables {
public:
    explicit WithVariables(std::map<QByteArray, std::optional<QByteArray>> variables)
    {
        for (const auto& [name, value] : variables) {
            m_before.emplace(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt);
            set(name, value);
        }
    }
    ~WithVariables()
    {
        for (const auto& [name, value] : m_before)
            set(name, value);
    }
    WithVariables(const WithVariables&) = delete;
    WithVariables& operator=(const WithVariables&) = delete;

private:
    static void set(const QByteArray& name, const std::optional<QByteArray>& value)
    {
        if (value)
            qputenv(name, *value);
        else
            qunsetenv(name);
    }

    std::map<QByteArray, std::optional<QByteArray>> m_before;
};

TEST_F(Mail, GoesToNoBrowserWhereTheRealCommandFindsNoMailProgram)
{
    const QByteArray none = (base() / "none").c_str();
    const WithVariables nobodyIsRegistered({{"HOME", none},
                                            {"XDG_DATA_HOME", none},
                                            {"XDG_CONFIG_HOME", none},
                                            {"XDG_DATA_DIRS", none},
                                            {"XDG_CONFIG_DIRS", none},
                                            {"XDG_CURRENT_DESKTOP", std::nullopt},
                                            {"DESKTOP_SESSION", std::nullopt},
                                            {"MAILER", std::nullopt},
                                            {"DISPLAY", ":none"}});
    for (const char* browser : {"x-www-browser", "www-browser", "chosen"})
        install(browser, mailHook);
    qputenv("PATH", QByteArray((base() / "bin").c_str()) + ":/usr/bin:/bin");
    for (const auto& chosen : {std::optional<QByteArray>(), std::optional<QByteArray>("chosen")}) {
        const WithVariables choice({{"BROWSER", chosen}});
        makeService();
        testing::internal::CaptureStderr();
        send(makeItem("file", "content"));
        EXPECT_TRUE(waitUntil([] { return !ShownWindows::texts().empty(); }));
        EXPECT_NE(testing::internal::GetCapturedStderr().find("the attachment was refused by"), std::string::npos);
        EXPECT_NE(ShownWindows::texts().find("“file” was not sent.\nNo mail program"), std::string::npos);
        EXPECT_FALSE(fs::exists(record() / "address")) << recorded("address");
        ShownWindows::closeAll();
        forget();
    }
}

struct FailingPortal : Mail, testing::WithParamInterface<const char*> {};

TEST_P(FailingPortal, LeavesTheItemToTheCommand)
{
    startPortal(GetParam());
    install("xdg-email", mailCommandStandIn);
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "text");
    EXPECT_FALSE(recorded("arguments").empty());
    EXPECT_EQ(ShownWindows::texts(), "");
}

TEST_P(FailingPortal, AndNoCommandAreToldToThePerson)
{
    startPortal(GetParam());
    makeService();
    testing::internal::CaptureStderr();
    send(makeItem("file", "text"));
    EXPECT_TRUE(waitUntil([] { return ShownWindows::texts().find("“file” was not sent.") != std::string::npos; }));
    EXPECT_NE(ShownWindows::texts().find("No mail program could be opened"), std::string::npos);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("no xdg-email, and no help from the portal"),
              std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Mail, FailingPortal,
                         testing::Values("refuse", "fail", "fail elsewhere", "vanish", "vanish later"));

TEST_F(Mail, CancelledInThePortalsOwnWindowGoesNowhereElse)
{
    startPortal("be cancelled");
    install("xdg-email", mailCommandStandIn);
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(waitUntil([this] { return fs::exists(record() / "asked"); }));
    runFor(500ms);
    EXPECT_FALSE(fs::exists(record() / "arguments"));
    EXPECT_EQ(ShownWindows::texts(), "");
}

TEST_F(Mail, EndsAtOnceWhileThePortalIsSilent)
{
    startPortal("be silent");
    install("xdg-email", mailCommandStandIn);
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(waitUntil([this] { return fs::exists(record() / "asked"); }));
    QElapsedTimer timer;
    timer.start();
    m_service.reset();
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST_F(Mail, GoesToThePortalWhereBothExist)
{
    startPortal("accept");
    install("xdg-email", mailCommandStandIn);
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "text");
    EXPECT_FALSE(fs::exists(record() / "arguments"));
}

TEST_F(Mail, AttachesSeveralItemsToOneMessage)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    m_service->performWithItems({NS::URL::fileURLWithPath(makeItem("a", "first").native()),
                                 NS::URL::fileURLWithPath(makeItem("b", "second").native())});
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "first");
    EXPECT_EQ(recorded("attachment2"), "second");
}

TEST_F(Mail, HasNoServiceWithoutPortalAndCommand)
{
    EXPECT_FALSE(composeEmailService(m_bus));
    Files::write(base() / "bin" / "xdg-email", mailCommandStandIn);
    EXPECT_FALSE(composeEmailService(m_bus)) << "it is not executable";
    fs::create_directory(base() / "bin" / "folder");
    fs::rename(base() / "bin" / "xdg-email", base() / "bin" / "folder" / "file");
    fs::create_directory(base() / "bin" / "xdg-email");
    EXPECT_FALSE(composeEmailService(m_bus)) << "it is a folder";
}

TEST_F(Mail, GoesToTheCommandWithoutABus)
{
    m_daemon.kill();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    install("xdg-email", mailCommandStandIn);
    SessionBus none("");
    const auto service = composeEmailService(none);
    ASSERT_TRUE(service);
    service->performWithItems({NS::URL::fileURLWithPath(makeItem("file", "text").native())});
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "text");
}

TEST_F(Mail, SaysWhatCannotBeAttachedAndSendsNothing)
{
    install("xdg-email", mailCommandStandIn);
    testing::internal::CaptureStderr();
    makeService();
    send(base() / "missing");
    EXPECT_EQ(ShownWindows::texts(), "“missing” was not sent.\nIt cannot be read: No such file or directory\n");
    ShownWindows::closeAll();
    send("/dev/null");
    EXPECT_EQ(ShownWindows::texts(), "“null” was not sent.\nIt cannot be read: it is not a file\n");
    m_service.reset();
    EXPECT_FALSE(fs::exists(record() / "arguments"));
    const std::string errors = testing::internal::GetCapturedStderr();
    const std::string program = program_invocation_short_name;
    EXPECT_NE(errors.find(program + ": cannot attach \"" + (base() / "missing").native() +
                          "\": No such file or directory\n"),
              std::string::npos);
    EXPECT_NE(errors.find(program + ": cannot attach \"/dev/null\": it is not a file\n"), std::string::npos);
}

TEST_F(Mail, SaysThatTheCommandRefused)
{
    install("xdg-email", "#!/bin/sh\nexit 3\n");
    testing::internal::CaptureStderr();
    makeService();
    send(makeItem("file", "text"));
    EXPECT_TRUE(waitUntil([] { return !ShownWindows::texts().empty(); }));
    EXPECT_NE(ShownWindows::texts().find("“file” was not sent.\nNo mail program"), std::string::npos);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("exit status 3\n"), std::string::npos);
}

TEST_F(Mail, SendsNoArchiveThatLacksSomethingAndSaysWhat)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    fs::create_directory(base() / "items" / "folder");
    makeItem("folder/file", "text");
    ASSERT_EQ(::mkfifo((base() / "items" / "folder" / "pipe").c_str(), 0600), 0);
    testing::internal::CaptureStderr();
    send(base() / "items" / "folder");
    runFor(500ms);
    EXPECT_EQ(ShownWindows::texts(),
              "“folder” was not sent.\nOne item in it cannot be packed:\n“pipe”: it is not a file\n");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("cannot pack"), std::string::npos);
    EXPECT_FALSE(fs::exists(record() / "arguments"));
    m_service.reset();
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(Mail, HandsAFolderOverAsOneArchiveThatGoesInTheEnd)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    fs::create_directories(base() / "items" / "my folder" / "empty");
    makeItem("my folder/file", "text");
    send(base() / "items" / "my folder" / "");
    ASSERT_TRUE(arrives());

    QProcess python;
    python.start(QStringLiteral("/usr/bin/env"),
                 {QStringLiteral("PATH=/usr/bin:/bin:/usr/local/bin"), QStringLiteral("python3"),
                  QStringLiteral("-m"), QStringLiteral("zipfile"), QStringLiteral("-l"),
                  QString::fromStdString((record() / "attachment1").native())});
    ASSERT_TRUE(python.waitForFinished());
    const QByteArray listing = python.readAllStandardOutput();
    EXPECT_TRUE(listing.contains("my folder/file ")) << listing.toStdString();
    EXPECT_TRUE(listing.contains("my folder/empty/ ")) << listing.toStdString();

    const std::string arguments = recorded("arguments");
    const std::string archive = arguments.substr(arguments.find('\0') + 1).c_str();
    EXPECT_TRUE(archive.starts_with(runtime().native() + "/")) << archive;
    EXPECT_TRUE(archive.ends_with("/my folder.zip")) << archive;
    EXPECT_TRUE(fs::exists(archive));
    m_service.reset();
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(Mail, HandsAFolderOverToThePortalToo)
{
    startPortal("accept");
    makeService();
    fs::create_directory(base() / "items" / "folder");
    send(base() / "items" / "folder");
    ASSERT_TRUE(arrives());
    EXPECT_TRUE(recorded("path1").ends_with("/folder.zip"));
    EXPECT_TRUE(recorded("attachment1").starts_with("PK"));
}

TEST_F(Mail, KeepsAnArchiveForASlowMailProgramWhenTheProgramEndsAtOnce)
{
    install("xdg-email", mailCommandStandIn);
    qputenv("ORVIK_DELAY", "0.5");
    makeService(1500ms);
    fs::create_directory(base() / "items" / "folder");
    send(base() / "items" / "folder");
    ASSERT_TRUE(waitUntil([this] { return fs::exists(record() / "process"); }));
    m_service.reset();
    ASSERT_TRUE(fs::exists(record() / "done"));
    EXPECT_TRUE(recorded("attachment1").starts_with("PK"));
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(Mail, RemovesWhatAKilledRunLeft)
{
    install("xdg-email", mailCommandStandIn);
    fs::create_directories(runtime() / "orvik-menu-mail-Ab12Cd" / "1");
    Files::write(runtime() / "orvik-menu-mail-Ab12Cd" / "1" / "old.zip", "old");
    makeService();
    EXPECT_EQ(temporaries(), 1) << "not before the next hand-off";
    send(makeItem("file", "text"));
    ASSERT_TRUE(arrives());
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(Mail, DoesNotKeepTheCallerWaiting)
{
    startPortal("accept");
    makeService();
    const auto portal = static_cast<pid_t>(m_portal.processId());
    ASSERT_EQ(::kill(portal, SIGSTOP), 0);
    send(makeItem("file", "text"));
    // Had the hand-over been waited for, the portal would not have been there for it.
    ASSERT_EQ(::kill(portal, SIGCONT), 0);
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "text");
}

TEST_F(Mail, HasPackedAFolderBeforeItReturnsWhereNoEventLoopRuns)
{
    startPortal("accept");
    makeService();
    fs::create_directory(base() / "items" / "folder");
    makeItem("folder/large", Files::noise(20'000'000));
    send(base() / "items" / "folder");
    EXPECT_GT(fs::file_size(archive()), 20'000'000U);
    ASSERT_TRUE(arrives());
}

TEST_F(Mail, SendsNothingWhenTheArchiveCannotBeMade)
{
    install("xdg-email", mailCommandStandIn);
    qputenv("XDG_RUNTIME_DIR", (base() / "missing").c_str());
    testing::internal::CaptureStderr();
    makeService();
    fs::create_directory(base() / "items" / "folder");
    send(base() / "items" / "folder");
    m_service.reset();
    EXPECT_EQ(ShownWindows::texts(), "“folder” was not sent.\nIt cannot be prepared in " +
                                         MailText::quoted((base() / "missing").native()).toStdString() +
                                         ": No such file or directory\n");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("cannot make a folder in"), std::string::npos);
    EXPECT_FALSE(fs::exists(record() / "arguments"));
}

TEST_F(Mail, StartsTheCommandOnItsOwnWithoutOurFiles)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    // Inherited unless something is done about it.
    const FileDescriptor open(::open((base() / "open file").c_str(), O_WRONLY | O_CREAT, 0600));
    ASSERT_TRUE(open);
    send(makeItem("file", "text"));
    ASSERT_TRUE(arrives());
    EXPECT_NE(recorded("descriptors").find("/dev/null"), std::string::npos);
    EXPECT_EQ(recorded("descriptors").find("open file"), std::string::npos) << recorded("descriptors");
    EXPECT_EQ(recorded("descriptors").find("socket:"), std::string::npos) << recorded("descriptors");

    // Process, command, state, parent, group, session.
    std::istringstream process(recorded("process"));
    std::string id, skipped, session;
    process >> id >> skipped >> skipped >> skipped >> skipped >> session;
    EXPECT_EQ(session, id);
}

TEST_F(Mail, LeavesNoZombie)
{
    install("xdg-email", mailCommandStandIn);
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(arrives());
    const std::string process = recorded("process");
    const std::string id = process.substr(0, process.find(' '));
    EXPECT_TRUE(waitUntil([&] { return !fs::exists("/proc/" + id); }));
}

TEST_F(Mail, LetsTheCommandRunOnAfterTheEnd)
{
    install("xdg-email", mailCommandStandIn);
    qputenv("ORVIK_DELAY", "1");
    makeService();
    send(makeItem("file", "text"));
    ASSERT_TRUE(waitUntil([this] { return fs::exists(record() / "process"); }));
    QElapsedTimer timer;
    timer.start();
    m_service.reset();
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_FALSE(fs::exists(record() / "done"));
    ASSERT_TRUE(arrives());
    EXPECT_EQ(recorded("attachment1"), "text");
}
