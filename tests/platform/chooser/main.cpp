#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace {

/// Gives each test a person without bookmarks and without a chooser before.
class NewPerson : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override
    {
        m_folder.emplace();
        qputenv("XDG_STATE_HOME", m_folder->filePath(QStringLiteral("state")).toUtf8());
        qputenv("XDG_CONFIG_HOME", m_folder->filePath(QStringLiteral("config")).toUtf8());
    }

    std::optional<QTemporaryDir> m_folder;
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new NewPerson);
    return RUN_ALL_TESTS();
}
