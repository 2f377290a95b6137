#include "platform/linux/mailing/ComposeEmail.h"

#include "../bus/Waiting.h"
#include "ShownWindows.h"
#include "support/Files.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace LinuxDesktop;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

/// Runs where mail goes to a command, which leaves a trace.
struct Preparing : testing::Test {
    Preparing()
    {
        for (const auto* name : {"bin", "runtime", "folder"})
            fs::create_directory(base() / name);
        Files::write(base() / "bin" / "xdg-email", "#!/bin/sh\n: > '" + (base() / "sent").native() + "'\n");
        fs::permissions(base() / "bin" / "xdg-email", fs::perms::owner_all);
        qputenv("PATH", (base() / "bin").c_str());
        qputenv("XDG_RUNTIME_DIR", (base() / "runtime").c_str());
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        m_bus = std::make_unique<SessionBus>("");
        m_service = composeEmailService(*m_bus, 0ms);
        // Takes no room, and hours to pack.
        Files::write(base() / "folder" / "huge", "");
        fs::resize_file(base() / "folder" / "huge", std::uintmax_t{400} * 1024 * 1024 * 1024);
    }
    ~Preparing() override
    {
        qputenv("PATH", m_pathBefore);
        ShownWindows::closeAll();
    }

    [[nodiscard]] fs::path base() const { return m_base.path().toStdString(); }
    void send() const { m_service->performWithItems({NS::URL::fileURLWithPath((base() / "folder").native())}); }
    /// As the program does once it runs.
    void sendFromTheEventLoop() const
    {
        bool sent = false;
        QTimer::singleShot(0, qApp, [&] {
            send();
            sent = true;
        });
        ASSERT_TRUE(waitUntil([&] { return sent; }));
    }
    [[nodiscard]] bool leavesNothing() const
    {
        return fs::is_empty(base() / "runtime") && !fs::exists(base() / "sent");
    }

    const QByteArray m_pathBefore = qgetenv("PATH");
    QTemporaryDir m_base;
    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<NS::SharingService> m_service;
};

} // namespace

TEST_F(Preparing, IsShownAfterASecondAndCanBeCancelled)
{
    QElapsedTimer timer;
    timer.start();
    sendFromTheEventLoop();
    ASSERT_TRUE(waitUntil([] { return !ShownWindows::all().isEmpty(); }));
    EXPECT_GE(timer.elapsed(), 990);
    QWidget* window = ShownWindows::all().at(0);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Orvik Menu"));
    EXPECT_EQ(window->accessibleName(), QStringLiteral("Preparing “folder” for sending…"));

    auto* cancel = window->findChild<QPushButton*>();
    EXPECT_EQ(cancel->text(), QStringLiteral("Cancel"));
    cancel->click();

    EXPECT_TRUE(ShownWindows::all().isEmpty());
    runFor(500ms);
    m_service.reset();
    EXPECT_TRUE(ShownWindows::all().isEmpty()) << "who cancels knows";
    EXPECT_TRUE(leavesNothing());
}

TEST_F(Preparing, IsCancelledByClosingItsWindow)
{
    sendFromTheEventLoop();
    ASSERT_TRUE(waitUntil([] { return !ShownWindows::all().isEmpty(); }));
    ShownWindows::all().at(0)->close();
    runFor(200ms);
    EXPECT_TRUE(ShownWindows::all().isEmpty());
    m_service.reset();
    EXPECT_TRUE(leavesNothing());
}

TEST_F(Preparing, EndsWithTheService)
{
    sendFromTheEventLoop();
    runFor(100ms);
    QElapsedTimer timer;
    timer.start();
    m_service.reset();
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_TRUE(leavesNothing());
}

TEST_F(Preparing, IsNotShownForWhatIsQuick)
{
    fs::resize_file(base() / "folder" / "huge", 10);
    sendFromTheEventLoop();
    EXPECT_TRUE(waitUntil([this] { return fs::exists(base() / "sent"); }));
    runFor(1500ms);
    EXPECT_TRUE(ShownWindows::all().isEmpty());
}
