#include "platform/linux/bus/ApplicationName.h"

#include "PrivateBus.h"
#include "Waiting.h"
#include "platform/linux/system/ModalState.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

using namespace LinuxDesktop;
using namespace std::chrono_literals;

namespace {

const QString identifier = QStringLiteral("org.example.two-part.Program");

/// Another process that starts under the identifier.
struct SecondStart {
    SecondStart(const char* activationToken = nullptr, const char* startupId = nullptr)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
        environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
        if (activationToken)
            environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QString::fromUtf8(activationToken));
        if (startupId)
            environment.insert(QStringLiteral("DESKTOP_STARTUP_ID"), QString::fromUtf8(startupId));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(ORVIK_SECOND_START), {identifier});
    }
    ~SecondStart()
    {
        process.kill();
        process.waitForFinished();
    }

    /// Its next line, while this process's event loop runs.
    QByteArray nextLine()
    {
        return waitUntil([&] { return process.canReadLine(); }) ? process.readLine().trimmed() : QByteArray();
    }

    QProcess process;
};

struct NamedApplication : testing::Test {
    static int callWithGdbus(const QStringList& methodAndArguments)
    {
        QProcess gdbus;
        gdbus.setProcessChannelMode(QProcess::ForwardedChannels);
        gdbus.start(QStringLiteral("gdbus"),
                    QStringList{QStringLiteral("call"), QStringLiteral("--session"), QStringLiteral("--dest"),
                                identifier, QStringLiteral("--object-path"),
                                QStringLiteral("/org/example/two_part/Program"), QStringLiteral("--method")} +
                        methodAndArguments);
        EXPECT_TRUE(waitUntil([&] { return gdbus.state() == QProcess::NotRunning; }));
        return gdbus.exitCode();
    }

    /// Owns the name, and notes the token that each activation gives to the window that it activates.
    void claim()
    {
        m_name.whenActivated([this] { m_token = qgetenv("XDG_ACTIVATION_TOKEN"); });
        ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
    }
    /// Of the next activation.
    QByteArray tokenOfActivation()
    {
        EXPECT_TRUE(waitUntil([this] { return m_token.has_value(); }));
        return std::exchange(m_token, std::nullopt).value_or("no activation");
    }
    /// Activates the program as another one would.
    void activate(const QVariantMap& platformData)
    {
        auto call =
            QDBusMessage::createMethodCall(identifier, QStringLiteral("/org/example/two_part/Program"),
                                           QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
        call << platformData;
        SessionBus others("none");
        QDBusPendingCall answer = others.connection()->asyncCall(call);
        EXPECT_TRUE(waitUntil([&] { return answer.isFinished(); }));
        EXPECT_FALSE(answer.isError());
    }

    PrivateBus m_daemon;
    SessionBus m_bus{"none"};
    ApplicationName m_name{m_bus, identifier.toStdString()};
    std::optional<QByteArray> m_token;
};

} // namespace

TEST_F(NamedApplication, IsActivatedByASecondStartWithItsToken)
{
    claim();
    EXPECT_FALSE(m_name.ownedByAnother());

    SecondStart second("a token", "a startup id");
    EXPECT_EQ(second.nextLine(), "activated");
    EXPECT_EQ(tokenOfActivation(), "a token");
}

TEST_F(NamedApplication, TakesTheStartupIdWhereThereIsNoToken)
{
    claim();
    SecondStart second(nullptr, "a startup id");
    EXPECT_EQ(tokenOfActivation(), "a startup id");
}

TEST_F(NamedApplication, UsesATokenOnce)
{
    claim();
    SecondStart first("a token");
    EXPECT_EQ(tokenOfActivation(), "a token");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));

    SecondStart second;
    EXPECT_EQ(tokenOfActivation(), "");
}

TEST_F(NamedApplication, TakesNoTokenThatIsLongerThanTokensAre)
{
    claim();
    const QString longest(4096, u'x');
    for (const auto& [sent, taken] : {std::pair(longest, longest), std::pair(longest + u'x', QString()),
                                      std::pair(QString(200'000, u'x'), QString())}) {
        activate({{QStringLiteral("activation-token"), sent}});
        EXPECT_EQ(QString::fromUtf8(tokenOfActivation()), taken) << sent.size();
    }
    activate({{QStringLiteral("activation-token"), QString(200'000, u'x')},
              {QStringLiteral("desktop-startup-id"), QStringLiteral("a startup id")}});
    EXPECT_EQ(tokenOfActivation(), "a startup id");
}

TEST_F(NamedApplication, HandsOnNoTokenThatIsLongerThanTokensAre)
{
    claim();
    const std::string tooLong(100'000, 'x');
    SecondStart second(tooLong.c_str(), "a startup id");
    EXPECT_EQ(tokenOfActivation(), "a startup id");
}

TEST_F(NamedApplication, IsActivatedWhileAModalPanelRuns)
{
    bool activated = false;
    m_name.whenActivated([&] { activated = true; });
    ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);

    ModalState modal;
    const ModalState::Session panel(modal);
    SecondStart second;
    EXPECT_TRUE(waitUntil([&] { return activated; }));
}

TEST_F(NamedApplication, AnswersBeforeItActs)
{
    bool acted = false;
    std::optional<SecondStart> second;
    m_name.whenActivated([&] {
        acted = true;
        EXPECT_TRUE(second->process.waitForFinished(3000)) << "it still waits for the handler";
    });
    ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
    second.emplace();
    EXPECT_TRUE(waitUntil([&] { return acted; }));
}

TEST_F(NamedApplication, ComesToTheFrontForWhatItIsAskedToOpen)
{
    bool activated = false;
    m_name.whenActivated([&] { activated = true; });
    ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
    EXPECT_EQ(callWithGdbus({QStringLiteral("org.freedesktop.Application.Open"), QStringLiteral("['file:///etc']"),
                             QStringLiteral("{}")}),
              0);
    EXPECT_TRUE(waitUntil([&] { return activated; }));
}

TEST_F(NamedApplication, RefusesActionsThatItDoesNotHave)
{
    ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
    EXPECT_NE(callWithGdbus({QStringLiteral("org.freedesktop.Application.ActivateAction"), QStringLiteral("fly"),
                             QStringLiteral("[]"), QStringLiteral("{}")}),
              0);
}

TEST_F(NamedApplication, SeesThatAnotherProcessOwnsTheNameUntilThatEnds)
{
    EXPECT_FALSE(m_name.ownedByAnother());
    SecondStart other;
    ASSERT_EQ(other.nextLine(), "owned");
    EXPECT_TRUE(m_name.ownedByAnother());
    EXPECT_EQ(m_name.claim(), ApplicationName::Claim::OwnedByAnother);

    other.process.closeWriteChannel();
    ASSERT_TRUE(waitUntil([&] { return other.process.state() == QProcess::NotRunning; }));
    EXPECT_FALSE(m_name.ownedByAnother());
    EXPECT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
}

TEST_F(NamedApplication, TakesThePlaceOfAKilledOne)
{
    SecondStart other;
    ASSERT_EQ(other.nextLine(), "owned");
    other.process.kill();
    ASSERT_TRUE(waitUntil([&] { return other.process.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(waitUntil([&] { return m_name.claim() == ApplicationName::Claim::Owned; }));
}

TEST_F(NamedApplication, GivesTheNameBackInTheEnd)
{
    {
        ApplicationName name(m_bus, "org.example.Brief");
        ASSERT_EQ(name.claim(), ApplicationName::Claim::Owned);
    }
    SessionBus otherBus("none");
    ApplicationName other(otherBus, "org.example.Brief");
    EXPECT_EQ(other.claim(), ApplicationName::Claim::Owned);
}

TEST_F(NamedApplication, CanGiveTheNameBackAndTakeItAgain)
{
    ASSERT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
    m_name.release();
    m_name.release();
    SessionBus otherBus("none");
    {
        ApplicationName other(otherBus, identifier.toStdString());
        EXPECT_EQ(other.claim(), ApplicationName::Claim::Owned);
    }
    EXPECT_EQ(m_name.claim(), ApplicationName::Claim::Owned);
}

TEST_F(NamedApplication, ActivatesNobodyWhenNobodyOwnsTheName)
{
    EXPECT_FALSE(m_name.activateOther({}));
}

TEST_F(NamedApplication, DoesNotWaitForeverForAnOwnerThatHangs)
{
    SecondStart other;
    ASSERT_EQ(other.nextLine(), "owned");
    ASSERT_EQ(::kill(static_cast<pid_t>(other.process.processId()), SIGSTOP), 0);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(m_name.activateOther({}));
    EXPECT_LT(timer.elapsed(), 7000);
}
