#include "extension/actions/transfer/window/TransferWork.h"

#include "support/Files.h"

#include <QEvent>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace MenuExtension::Transfers {

namespace {

namespace fs = std::filesystem;

/// Files in a folder that is listed, and one to move them to. What is remembered of it lies in another folder.
class TransferWorkTest : public testing::Test {
protected:
    TransferWorkTest()
    {
        qputenv("XDG_STATE_HOME", (root / "state").c_str());
        for (const fs::path& folder : {from, to, root / "state"})
            fs::create_directory(folder);
    }
    ~TransferWorkTest() override { qunsetenv("XDG_STATE_HOME"); }

    [[nodiscard]] Request requestFor(const std::vector<std::string>& names) const
    {
        Request request;
        request.scope = Scope({{root.string()}});
        for (const std::string& name : names) {
            Files::write(from / name, "new");
            request.paths.push_back(from / name);
        }
        return request;
    }

    QTemporaryDir temporary;
    const fs::path root{temporary.path().toStdString()};
    const fs::path from = root / "from";
    const fs::path to = root / "to";
};

/// Cancels when a question has been sent, and before it has come.
class CancelsAtTheLastMoment : public QObject {
public:
    explicit CancelsAtTheLastMoment(TransferWork& work) : m_work(work) { work.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MetaCall)
            m_work.cancel();
        return QObject::eventFilter(watched, event);
    }

private:
    TransferWork& m_work;
};

TEST_F(TransferWorkTest, AsksAboutANameThatIsTaken)
{
    Files::write(to / "taken", "old");
    TransferWork work(requestFor({"taken"}));
    std::string asked;
    QObject::connect(&work, &TransferWork::conflictMet, [&](const Conflict& conflict) {
        asked = conflict.target.path;
        work.answer({Resolution::Replace});
    });
    QSignalSpy finished(&work, &TransferWork::finished);
    work.start(true, to);
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(asked, to / "taken");
    EXPECT_EQ(Files::read(to / "taken"), "new");
}

TEST_F(TransferWorkTest, AsksNothingMoreWhenItIsCancelled)
{
    Files::write(to / "taken", "old");
    TransferWork work(requestFor({"taken"}));
    const CancelsAtTheLastMoment cancels(work);
    QSignalSpy asked(&work, &TransferWork::conflictMet);
    QSignalSpy finished(&work, &TransferWork::finished);
    work.start(true, to);
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(asked.count(), 0);
    EXPECT_TRUE(work.result().isCancelled);
    EXPECT_EQ(Files::read(to / "taken"), "old");
}

TEST_F(TransferWorkTest, TellsOfNoProblemWhenItIsCancelled)
{
    Request request = requestFor({"good"});
    request.paths.push_back(from / "gone");
    TransferWork work(request);
    const CancelsAtTheLastMoment cancels(work);
    QSignalSpy found(&work, &TransferWork::problemsFound);
    QSignalSpy finished(&work, &TransferWork::finished);
    work.start(true, to);
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(found.count(), 0);
    EXPECT_TRUE(work.result().isCancelled);
    EXPECT_TRUE(fs::exists(from / "good"));
}

} // namespace

} // namespace MenuExtension::Transfers
