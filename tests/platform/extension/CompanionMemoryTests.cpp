#include "../bus/Waiting.h"
#include "CompanionProcess.h"
#include "settings/Deployment.h"

#include <QByteArrayList>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <fstream>

namespace {

/// What it has in memory, in KiB.
long memoryOf(const QProcess& companion)
{
    std::ifstream status("/proc/" + std::to_string(companion.processId()) + "/status");
    long kibibytes = 0;
    for (std::string word; kibibytes == 0 && status >> word;) {
        if (word == "VmRSS:")
            status >> kibibytes;
    }
    EXPECT_GT(kibibytes, 0);
    return kibibytes;
}

} // namespace

TEST_F(CompanionTest, TakesLittleMemory)
{
    EXPECT_LT(memoryOf(startAndWait()), 12 * 1024);
}

TEST_F(CompanionTest, GivesTheMemoryOfALargeRequestBack)
{
    qDBusRegisterMetaType<QByteArrayList>();
    store({{"menuArrayDic",
            NS::Value::Array{NS::Value::Dictionary{{"title", std::string("Hide / Unhide item")}, {"state", true}}}},
           {"foldersArray", NS::Value::Array{NS::Value("/in")}},
           {"foldersArraystate", NS::Value::Array{NS::Value(std::int64_t{1})}}});
    const QProcess& companion = startAndWait();
    for (const QByteArray& folder : {QByteArray("/in/"), QByteArray("/out/")}) {
        SCOPED_TRACE(folder.toStdString());
        QByteArrayList paths;
        for (int number = 0; number < 200'000; ++number)
            paths << folder + "a somewhat usual name of a photo " + QByteArray::number(number) + ".jpg";
        auto call = QDBusMessage::createMethodCall(
            QString::fromUtf8(Deployment::extensionIdentifier.data(), Deployment::extensionIdentifier.size()),
            companionPath(), QStringLiteral("com.orvikstudio.FinderSyncExtension"), QStringLiteral("Run"));
        call << QStringLiteral("hide-unhide-item") << QVariant::fromValue(paths) << QVariantMap();
        const QDBusMessage answer = connection().call(call, QDBus::Block, 60'000);
        EXPECT_TRUE(
            answer.errorName().endsWith(folder == "/in/" ? QStringLiteral(".Failed") : QStringLiteral(".OutOfScope")))
            << answer.errorMessage().toStdString();
        EXPECT_TRUE(waitUntil([&] { return memoryOf(companion) < 12 * 1024; })) << memoryOf(companion);
    }
}
