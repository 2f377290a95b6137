#include "../bus/Waiting.h"
#include "CompanionProcess.h"
#include "NotificationsStandIn.h"
#include "platform/linux/system/FileDescriptor.h"
#include "settings/Deployment.h"
#include "settings/MenuCatalogue.h"

#include <QByteArrayList>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace {

const QString interface = QStringLiteral("com.orvikstudio.FinderSyncExtension");

/// Folders of a person, one of them listed and active, and a companion with every action on.
class Run : public CompanionTest {
protected:
    Run()
    {
        qDBusRegisterMetaType<QByteArrayList>();
        ::chmod(m_files.path().toUtf8().constData(), 0755);
        QDir(m_files.path()).mkpath(QStringLiteral("in"));
        QDir(m_files.path()).mkpath(QStringLiteral("out"));
        storeWith({});
        startAndWait();
    }

    // The toolkit does not remove names that are no text.
    ~Run() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_files.path().toStdString(), ignored);
    }

    /// Stores the settings, with the actions of these identifiers off.
    void storeWith(const std::vector<std::string_view>& off)
    {
        NS::Value::Array items;
        for (const CatalogueRow& row : menuCatalogue) {
            const bool on = std::find(off.begin(), off.end(), row.identifier) == off.end();
            items.emplace_back(NS::Value::Dictionary{{"title", std::string(row.title)}, {"state", on}});
        }
        store({{"menuArrayDic", std::move(items)},
               {"foldersArray", NS::Value::Array{NS::Value(path("in").toStdString())}},
               {"foldersArraystate", NS::Value::Array{NS::Value(std::int64_t{1})}}});
    }

    [[nodiscard]] QByteArray path(const char* name) const { return m_files.path().toUtf8() + '/' + name; }

    QByteArray makeFile(const char* name) const
    {
        QFile file(QFile::decodeName(path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path(name);
    }

    [[nodiscard]] static QDBusMessage callOf(const char* action, const QByteArrayList& paths,
                                             const QVariantMap& options = {})
    {
        auto call = QDBusMessage::createMethodCall(
            QString::fromUtf8(Deployment::extensionIdentifier.data(), Deployment::extensionIdentifier.size()),
            companionPath(), interface, QStringLiteral("Run"));
        call << QString::fromLatin1(action) << QVariant::fromValue(paths) << options;
        return call;
    }

    [[nodiscard]] QDBusPendingCall ask(const char* action, const QByteArrayList& paths,
                                       const QVariantMap& options = {})
    {
        return connection().asyncCall(callOf(action, paths, options), 60'000);
    }

    /// The last part of the error's name; "done" where there is none.
    static std::string outcomeOf(const QDBusPendingCall& call)
    {
        EXPECT_TRUE(waitUntil([&] { return call.isFinished(); }));
        return call.isError() ? call.error().name().section(u'.', -1).toStdString() : "done";
    }

    std::string run(const char* action, const QByteArrayList& paths, const QVariantMap& options = {})
    {
        return outcomeOf(ask(action, paths, options));
    }

    /// What the lists of hidden items in the listed folder say.
    [[nodiscard]] QByteArray hidden() const
    {
        QFile file(m_files.filePath(QStringLiteral("in/.hidden")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_files;
};

} // namespace

TEST_F(Run, AnswersWhenTheActionIsDone)
{
    EXPECT_EQ(run("hide-unhide-item", {makeFile("in/a")}), "done");
    EXPECT_EQ(hidden(), "a\n");
    EXPECT_EQ(run("create-new-text-file", {path("in")}, {{"background", true}}), "done");
    EXPECT_EQ(QDir(m_files.filePath(QStringLiteral("in"))).entryList(QDir::Files).size(), 2);
}

TEST_F(Run, PassesPathsOnAsBytes)
{
    const QByteArrayList names{"in/a\nb", "in/'\"$(touch x)`%s", "in/-rf", "in/\xff\xfe",
                               "in/" + QByteArray(255, 'n')};
    QByteArrayList paths;
    for (const QByteArray& name : names) {
        ASSERT_EQ(::mkdir(path(name.constData()).constData(), 0700), 0) << name.toStdString();
        paths << path(name.constData());
    }
    for (const QByteArray& name : names)
        EXPECT_EQ(run("create-new-text-file", {path(name.constData())}), "done") << name.toStdString();
    EXPECT_EQ(QDir(m_files.path()).entryList(QDir::Files), QStringList());
    for (const QByteArray& name : names) {
        const QByteArray made = path(name.constData()) + "/New Text File.txt";
        struct stat status = {};
        EXPECT_EQ(::stat(made.constData(), &status), 0) << made.toStdString();
    }
}

TEST_F(Run, IgnoresAZeroAtTheEndOfAPath)
{
    EXPECT_EQ(run("hide-unhide-item", {makeFile("in/a") + '\0'}), "done");
    EXPECT_EQ(hidden(), "a\n");
}

TEST_F(Run, KnowsNoOtherActions)
{
    for (const char* action : {"", "format-disk", "Open-Terminal", "../open-terminal", "open-terminal/"})
        EXPECT_EQ(run(action, {makeFile("in/a")}), "UnknownAction") << action;
    EXPECT_EQ(run("format-disk", {"not/absolute"}), "UnknownAction");
}

TEST_F(Run, LeavesTheClipboardToTheFileManager)
{
    EXPECT_EQ(run("copy-path-to-clipboard", {makeFile("in/a")}), "DoesNotApply");
    EXPECT_EQ(run("copy-path-to-clipboard", {path("out")}), "DoesNotApply");
    storeWith({"copy-path-to-clipboard"});
    EXPECT_EQ(run("copy-path-to-clipboard", {"not/absolute"}), "DoesNotApply");
}

TEST_F(Run, GoesByTheSettingsThatWereStoredBefore)
{
    const QByteArray item = makeFile("in/a");
    for (int round = 0; round < 20; ++round) {
        storeWith({"hide-unhide-item"});
        EXPECT_EQ(run("hide-unhide-item", {item}), "SwitchedOff");
        storeWith({});
        EXPECT_EQ(run("hide-unhide-item", {item}), "done");
    }
    store({});
    EXPECT_EQ(run("hide-unhide-item", {item}), "SwitchedOff");
}

TEST_F(Run, RefusesWhatIsNotInAnActiveFolder)
{
    const QByteArray item = makeFile("in/a");
    for (const QByteArrayList& paths : std::vector<QByteArrayList>{
             {path("out/a")}, {path("in")}, {path("in") + '/'}, {"/"}, {item, path("out/a")}, {path("inside/a")}})
        EXPECT_EQ(run("hide-unhide-item", paths), "OutOfScope") << paths.join(' ').toStdString();
    EXPECT_EQ(run("create-new-text-file", {path("out")}, {{"background", true}}), "OutOfScope");
    EXPECT_EQ(hidden(), "");
}

TEST_F(Run, RefusesPathsThatAreNone)
{
    const QByteArray item = makeFile("in/a");
    const QByteArray inside = path("in") + '/';
    for (const QByteArrayList& paths : std::vector<QByteArrayList>{{},
                                                                   {""},
                                                                   {QByteArray(1, '\0')},
                                                                   {"in/a"},
                                                                   {inside + "../in/a"},
                                                                   {inside + "./a"},
                                                                   {inside + ".."},
                                                                   {inside + QByteArray("a\0b", 3)},
                                                                   {item + QByteArray(2, '\0')},
                                                                   {inside + QByteArray(1 << 20, 'x')},
                                                                   {item, "a"}})
        EXPECT_EQ(run("hide-unhide-item", paths), "BadArguments") << paths.join(' ').left(200).toStdString();
    EXPECT_EQ(hidden(), "");
}

TEST_F(Run, RefusesOptionsOfTheWrongKindAndPassesOverOthers)
{
    const QByteArray item = makeFile("in/a");
    const QByteArrayList one{item};
    EXPECT_EQ(run("hide-unhide-item", one, {{"background", 1}}), "BadArguments");
    EXPECT_EQ(run("hide-unhide-item", one, {{"activation-token", true}}), "BadArguments");
    EXPECT_EQ(run("hide-unhide-item", one, {{"target", "/text"}}), "BadArguments");
    EXPECT_EQ(run("hide-unhide-item", one, {{"target", QByteArray("relative")}}), "BadArguments");
    EXPECT_EQ(run("create-new-text-file", {path("in"), path("in")}, {{"background", true}}), "BadArguments");
    EXPECT_EQ(hidden(), "");
    EXPECT_EQ(run("hide-unhide-item", one,
                  {{"colour", 7}, {"target", path("out")}, {"activation-token", QString(200'000, u'x')}}),
              "done");
}

TEST_F(Run, SaysWhatAnActionDoesNotApplyTo)
{
    NotificationsStandIn desktop(m_daemon.address());
    EXPECT_EQ(run("set-as-wallpaper", {makeFile("in/a")}), "DoesNotApply");
    EXPECT_EQ(run("hide-unhide-item", {path("in")}, {{"background", true}}), "DoesNotApply");
    EXPECT_EQ(run("create-new-text-file", {makeFile("in/a")}), "DoesNotApply");
    EXPECT_EQ(run("create-new-text-file", {makeFile("in/a")}, {{"background", true}}), "DoesNotApply");
    EXPECT_EQ(run("hide-unhide-item", {path("in/gone")}), "Failed");
    ASSERT_TRUE(waitUntil([&] { return !desktop.shown().isEmpty(); }));
    EXPECT_EQ(desktop.shown().size(), 1) << "whoever asked is told of the others";
}

TEST_F(Run, TellsEverythingOnStandardErrorWhereNobodyShowsIt)
{
    quit();
    ASSERT_TRUE(waitUntil([&] { return !nameIsOwned(); }));
    QProcess& companion = startAndWait();
    for (int number = 0; number < 50; ++number)
        connection().send(callOf("hide-unhide-item", {path("out/") + QByteArray::number(number)}));
    QByteArray told;
    ASSERT_TRUE(waitUntil([&] {
        told += companion.readAllStandardError();
        return told.count('\n') >= 50;
    })) << told.toStdString();
    for (int number = 0; number < 50; ++number)
        EXPECT_TRUE(told.contains('"' + QByteArray::number(number) + '"')) << number;
}

TEST_F(Run, FailsWithWordsWhichTheDesktopShowsToo)
{
    NotificationsStandIn desktop(m_daemon.address());
    const auto call = ask("hide-unhide-item", {path("in/<gone> & \xff")});
    EXPECT_EQ(outcomeOf(call), "Failed");
    EXPECT_EQ(call.error().message().left(14), QStringLiteral("\"<gone> & �\" c"));
    ASSERT_TRUE(waitUntil([&] { return desktop.shown().size() == 1; }));
    EXPECT_TRUE(desktop.shown()[0].startsWith(QStringLiteral("0 Hide / Unhide item: \"&lt;gone&gt; &amp; �\" c")))
        << desktop.shown()[0].toStdString();

    // The same again takes the place of the first.
    EXPECT_EQ(run("hide-unhide-item", {path("in/<gone> & \xff")}), "Failed");
    ASSERT_TRUE(waitUntil([&] { return desktop.shown().size() == 2; }));
    EXPECT_TRUE(desktop.shown()[1].startsWith(QStringLiteral("1 Hide")));
    EXPECT_EQ(run("hide-unhide-item", {path("in/other")}), "Failed");
    ASSERT_TRUE(waitUntil([&] { return desktop.shown().size() == 3; }));
    EXPECT_TRUE(desktop.shown()[2].startsWith(QStringLiteral("0 Hide")));
}

TEST_F(Run, TellsOnTheDesktopWhatNobodyWaitsFor)
{
    NotificationsStandIn desktop(m_daemon.address());
    EXPECT_EQ(run("hide-unhide-item", {path("out/a")}), "OutOfScope");
    connection().send(callOf("hide-unhide-item", {path("out/b")}));
    ASSERT_TRUE(waitUntil([&] { return desktop.shown().size() == 1; }));
    EXPECT_TRUE(desktop.shown()[0].startsWith(QStringLiteral("0 Hide")));
    EXPECT_TRUE(desktop.shown()[0].contains(QStringLiteral("\"b\""))) << desktop.shown()[0].toStdString();
    connection().send(callOf("format-disk", {path("in/a")}));
    ASSERT_TRUE(waitUntil([&] { return desktop.shown().size() == 2; }));
    EXPECT_EQ(desktop.shown()[1], QStringLiteral("0 Orvik Menu: Orvik Menu has no action of that name."));
}

TEST_F(Run, FailsWhereTheActionsProgramIsNotThere)
{
    quit();
    ASSERT_TRUE(waitUntil([&] { return !nameIsOwned(); }));
    // Beside a copy of the companion there are no actions.
    const QString copy = m_files.filePath(QStringLiteral("bin/orvik-menu-extension"));
    QDir(m_files.path()).mkpath(QStringLiteral("bin"));
    ASSERT_TRUE(QFile::copy(m_program, copy));
    m_program = copy;
    startAndWait();
    EXPECT_EQ(run("hide-unhide-item", {makeFile("in/a")}), "Failed");
    EXPECT_EQ(hidden(), "");
}

TEST_F(Run, TakesAThousandAtOnceAndRefusesWhatIsTooMuch)
{
    const QByteArray item = makeFile("in/a");
    // The actions wait for their turn with the folder.
    const LinuxDesktop::FileDescriptor folder(::open(path("in").constData(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::flock(folder.get(), LOCK_EX), 0);
    std::vector<QDBusPendingCall> calls;
    for (int number = 0; number < 1100; ++number)
        calls.push_back(ask("hide-unhide-item", {item}));
    EXPECT_EQ(outcomeOf(calls.back()), "Failed");
    EXPECT_EQ(calls.back().error().message(), QStringLiteral("Too much is asked for at once."));
    EXPECT_FALSE(calls[1000].isFinished());

    ASSERT_EQ(::flock(folder.get(), LOCK_UN), 0);
    EXPECT_EQ(std::ranges::count_if(calls, [](const auto& call) { return outcomeOf(call) == "done"; }), 16 + 1024);
}

enum class Asked { Run, Quit };

/// The error's name that another user gets who asks on that bus.
static std::string askAs(uid_t user, const QByteArray& address, Asked asked = Asked::Run)
{
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    const LinuxDesktop::FileDescriptor reading(ends[0]);
    LinuxDesktop::FileDescriptor writing(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) {
        sd_bus* bus = nullptr;
        sd_bus_error error{};
        const std::string name(Deployment::extensionIdentifier);
        if (::setuid(user) == 0 && sd_bus_new(&bus) >= 0 && sd_bus_set_address(bus, address.constData()) >= 0 &&
            sd_bus_set_bus_client(bus, 1) >= 0 && sd_bus_start(bus) >= 0) {
            const auto call = [&](const char* method, const char* types, auto... arguments) {
                sd_bus_call_method(bus, name.c_str(), companionPath().toUtf8().constData(),
                                   interface.toUtf8().constData(), method, &error, nullptr, types, arguments...);
            };
            if (asked == Asked::Run)
                call("Run", "saaya{sv}", "open-terminal", 0, 0);
            else
                call("Quit", "");
        }
        const std::string_view answer = error.name ? error.name : "none";
        static_cast<void>(::write(writing.get(), answer.data(), answer.size()));
        ::_exit(0);
    }
    writing.close();
    std::array<char, 200> answer{};
    // The companion asks the bus, and nobody here.
    const ssize_t count = ::read(reading.get(), answer.data(), answer.size());
    ::waitpid(child, nullptr, 0);
    return {answer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

TEST_F(Run, IsForItsOwnUserAlone)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can be somebody else";
    ::chmod(m_daemon.socketPath().constData(), 0777);
    ::chmod(QFileInfo(QString::fromUtf8(m_daemon.socketPath())).path().toUtf8().constData(), 0755);
    EXPECT_EQ(askAs(65534, m_daemon.address()), "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_EQ(askAs(0, m_daemon.address()), "com.orvikstudio.FinderSyncExtension.Error.BadArguments");
    EXPECT_EQ(askAs(65534, m_daemon.address(), Asked::Quit), "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_TRUE(nameIsOwned());
    EXPECT_EQ(askAs(0, m_daemon.address(), Asked::Quit), "none");
    EXPECT_TRUE(waitUntil([&] { return !nameIsOwned(); }));
}

TEST_F(Run, IsThereForAShellToo)
{
    const QString action = QStringLiteral("hide-unhide-item");
    const QString item = QString::fromUtf8(makeFile("in/a"));
    QProcess& first = start({QStringLiteral("--run"), action, item});
    EXPECT_EQ(statusOf(first), 0);
    EXPECT_EQ(first.readAllStandardError() + first.readAllStandardOutput(), "");
    EXPECT_EQ(hidden(), "a\n");

    QProcess& out = start({QStringLiteral("--run"), action, QString::fromUtf8(path("out"))});
    EXPECT_EQ(statusOf(out), 1);
    EXPECT_EQ(out.readAllStandardError(),
              "orvik-menu-extension: \"out\" is not in a folder that Orvik Menu works in. "
              "Add the folder in its settings.\n");
    for (const QStringList& arguments : {QStringList{QStringLiteral("--run")}, {QStringLiteral("--run"), action}}) {
        QProcess& wrong = start(arguments);
        EXPECT_EQ(statusOf(wrong), 2);
        EXPECT_TRUE(wrong.readAllStandardError().startsWith("orvik-menu-extension: --run takes"));
    }

    quit();
    QProcess& alone = start({QStringLiteral("--run"), action, item});
    EXPECT_EQ(statusOf(alone), 1);
    EXPECT_EQ(alone.readAllStandardError(),
              "orvik-menu-extension: the companion does not run; switch it on in Orvik Menu\n");
}

TEST_F(Run, TakesPathsFromAShellAsTheyAreTyped)
{
    const QString action = QStringLiteral("hide-unhide-item");
    makeFile("in/a");
    QProcess& dotted = start({QStringLiteral("--run"), action, QString::fromUtf8(path("./in/./a"))});
    EXPECT_EQ(statusOf(dotted), 0);
    EXPECT_EQ(hidden(), "a\n");

    for (const QString& none : {QString(), QString::fromUtf8(path("out/../in/a"))}) {
        QProcess& wrong = start({QStringLiteral("--run"), action, none});
        EXPECT_EQ(statusOf(wrong), 1);
        EXPECT_TRUE(
            wrong.readAllStandardError().startsWith("orvik-menu-extension: A path must be absolute and plain"));
    }
    EXPECT_EQ(hidden(), "a\n");
}
