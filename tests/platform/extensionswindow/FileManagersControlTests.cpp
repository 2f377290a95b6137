#include "extensions/FileManagersControl.h"

#include "../bus/Waiting.h"
#include "Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>

using namespace ExtensionsTool;
using namespace std::chrono_literals;
using MenuExtension::BridgeStatus;

namespace {

constexpr std::size_t nemo = 1;
constexpr std::size_t dolphin = 4;

/// File managers of a test's own among the system's real processes.
class FileManagersControlTest : public testing::Test {
protected:
    FileManagersControlTest()
    {
        install(QStringLiteral("nemo"));
        addModule();
    }
    ~FileManagersControlTest() override
    {
        for (const auto& process : m_processes) {
            process->kill();
            process->waitForFinished();
        }
    }

    [[nodiscard]] QString path(const QString& name) const
    {
        return QFileInfo(m_root.path()).canonicalFilePath() + u'/' + name;
    }

    void install(const QString& program) const
    {
        ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("bin"))));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ORVIK_FILE_MANAGER_STAND_IN), path(QStringLiteral("bin/") + program)));
    }

    [[nodiscard]] QString module() const
    {
        return path(QStringLiteral("lib/nemo/extensions-3.0/liborvik-menu-nemo.so"));
    }

    /// Any module would do.
    void addModule() const
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(module()).path()));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ORVIK_MODULE_STAND_IN), module()));
    }

    /// An update of the package.
    void replaceModule() const
    {
        ASSERT_TRUE(QFile::remove(module()));
        addModule();
    }

    QProcess& run(const QStringList& arguments)
    {
        QProcess& process = *m_processes.emplace_back(std::make_unique<QProcess>());
        process.start(path(QStringLiteral("bin/nemo")), arguments);
        EXPECT_TRUE(process.waitForStarted());
        EXPECT_TRUE(waitUntil([&] {
            QFile running(path(QStringLiteral("bin/nemo.running")));
            return running.open(QIODevice::ReadOnly) &&
                   running.readAll().contains(QByteArray::number(process.processId()));
        }));
        return process;
    }
    QProcess& runWithoutModule() { return run({}); }
    QProcess& runWithModule() { return run({module()}); }

    FileManagersControl& control(std::chrono::milliseconds patience = 10s)
    {
        return m_control.emplace(
            MenuExtension::Places{.programFolders = {}, .system = path(QString()).chopped(1).toStdString()}, patience,
            100ms);
    }

    [[nodiscard]] bool comesTo(const FileManagerStatus& status)
    {
        const bool did = waitUntil([&] { return m_control->status(nemo) == status; });
        EXPECT_TRUE(did) << inWords(MenuExtension::fileManagers.at(nemo), m_control->status(nemo)).toStdString();
        return did;
    }

    /// What it was asked to do, a line each.
    [[nodiscard]] QByteArray asked() const
    {
        QFile file(path(QStringLiteral("bin/nemo.asked")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void beStubborn() const { writeFile(path(QStringLiteral("bin/nemo.stubborn")), ""); }

private:
    QTemporaryDir m_root;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    std::optional<FileManagersControl> m_control;
};

using ManagersControl = FileManagersControlTest;

} // namespace

TEST_F(ManagersControl, KnowsHowThingsStandFromTheBeginning)
{
    runWithModule();
    auto& managers = control();
    ASSERT_TRUE(comesTo({BridgeStatus::Loaded}));
    EXPECT_EQ(managers.status(dolphin), FileManagerStatus{});
}

TEST_F(ManagersControl, FollowsWhatHappens)
{
    auto& managers = control();
    managers.follow();
    ASSERT_TRUE(comesTo({BridgeStatus::NotRunning}));
    QProcess& process = runWithModule();
    ASSERT_TRUE(comesTo({BridgeStatus::Loaded}));
    replaceModule();
    ASSERT_TRUE(comesTo({BridgeStatus::OlderLoaded}));
    runWithoutModule();
    process.kill();
    ASSERT_TRUE(comesTo({BridgeStatus::NotLoaded}));
    ASSERT_TRUE(QFile::remove(module()));
    ASSERT_TRUE(comesTo({BridgeStatus::NotInstalled}));
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("bin/nemo"))));
    ASSERT_TRUE(comesTo({BridgeStatus::NoFileManager}));
}

TEST_F(ManagersControl, DoesNotLookWhileItRests)
{
    auto& managers = control();
    managers.follow();
    ASSERT_TRUE(comesTo({BridgeStatus::NotRunning}));
    managers.rest();
    // A look that is under way yet.
    runFor(300ms);
    runWithModule();
    runFor(1s);
    EXPECT_EQ(managers.status(nemo), FileManagerStatus{BridgeStatus::NotRunning});
    managers.follow();
    EXPECT_TRUE(comesTo({BridgeStatus::Loaded}));
}

TEST_F(ManagersControl, RestartsByAskingTheProgramItself)
{
    QProcess& process = runWithoutModule();
    auto& managers = control();
    managers.follow();
    ASSERT_TRUE(comesTo({BridgeStatus::NotLoaded}));
    managers.restart(nemo);
    EXPECT_EQ(managers.status(nemo), (FileManagerStatus{BridgeStatus::NotLoaded, true, {}}));
    managers.restart(nemo);
    EXPECT_TRUE(comesTo({BridgeStatus::NotRunning}));
    EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(asked(), "-q\n") << "once";
}

TEST_F(ManagersControl, DoesNotCloseWhatNeedNotBeRestarted)
{
    runWithModule();
    auto& managers = control();
    ASSERT_TRUE(comesTo({BridgeStatus::Loaded}));
    managers.restart(nemo);
    managers.restart(dolphin);
    EXPECT_EQ(managers.status(nemo), FileManagerStatus{BridgeStatus::Loaded});
    runFor(300ms);
    EXPECT_EQ(asked(), "");
}

TEST_F(ManagersControl, SaysThatOneDoesNotClose)
{
    beStubborn();
    QProcess& process = runWithoutModule();
    auto& managers = control(500ms);
    managers.follow();
    ASSERT_TRUE(comesTo({BridgeStatus::NotLoaded}));
    managers.restart(nemo);
    const QString stillRunning = QStringLiteral("It was asked to close, but it is still running.");
    ASSERT_TRUE(comesTo({BridgeStatus::NotLoaded, false, stillRunning}));
    // Late is better than never, and then nothing is wrong any more.
    process.kill();
    EXPECT_TRUE(comesTo({BridgeStatus::NotRunning}));
}

TEST_F(ManagersControl, SaysThatOneCannotBeAsked)
{
    runWithoutModule();
    auto& managers = control();
    ASSERT_TRUE(comesTo({BridgeStatus::NotLoaded}));
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("bin/nemo"))));
    managers.restart(nemo);
    EXPECT_EQ(managers.status(nemo),
              (FileManagerStatus{BridgeStatus::NotLoaded, false, QStringLiteral("It could not be asked to close.")}));
}
