#include "../bus/Waiting.h"
#include "ActionTest.h"
#include "BusStandIns.h"
#include "platform/linux/store/PropertyList.h"
#include "settings/Settings.h"

namespace {

class AddFolders : public ActionTest {
protected:
    const std::string key{Settings::arrCustomFoldersUrls.key};

    [[nodiscard]] std::vector<std::string> list() const
    {
        std::vector<std::string> paths;
        if (const auto value = stored(key)) {
            for (const NS::Value& path : *value->array())
                paths.push_back(*path.string());
        }
        return paths;
    }
};

TEST_F(AddFolders, FoldersAreAddedInTheirOrderAndThePanelIsTold)
{
    NotificationObserver observer(busAddress());
    store(key, NS::Value::Array{"/z"});
    const Path b = folder("b");
    const Path a = folder("a");
    EXPECT_EQ(run("add-folders", {b, a}), done);
    EXPECT_EQ(list(), (std::vector<std::string>{"/z", b, a}));
    EXPECT_TRUE(waitUntil([&] {
        return observer.posted() ==
               QStringList{QStringLiteral("ReloadCustomFolders com.orvikstudio.orvikmenu.findersyncextension")};
    }));
}

TEST_F(AddFolders, AFolderThatIsThereIsNotAddedAgain)
{
    const Path a = folder("a");
    store(key, NS::Value::Array{a.native() + '/'});
    EXPECT_EQ(run("add-folders", {a, folder("b"), listed() / "b"}), done);
    EXPECT_EQ(list(), (std::vector<std::string>{a.native() + '/', listed() / "b"}));
}

TEST_F(AddFolders, OfABackgroundTheFolderIsAdded)
{
    EXPECT_EQ(run("add-folders", {listed()}, {.background = true}), done);
    EXPECT_EQ(list(), std::vector<std::string>{listed()});
}

TEST_F(AddFolders, AListThatIsNoneIsReplacedAndWhatElseIsStoredStays)
{
    store(key, NS::Value("no list"));
    store("other", NS::Value(7));
    EXPECT_EQ(run("add-folders", {folder("a")}), done);
    EXPECT_EQ(list(), std::vector<std::string>{listed() / "a"});
    EXPECT_EQ(stored("other"), NS::Value(7));
}

TEST_F(AddFolders, OfManyAtOnceNoneIsLost)
{
    std::vector<Paths> requests;
    for (int number = 0; number < 12; ++number)
        requests.push_back({folder("folder " + std::to_string(number))});
    EXPECT_EQ(runAtOnce("add-folders", requests), std::vector<Answer>(12, done));
    EXPECT_EQ(list().size(), 12U);
}

TEST_F(AddFolders, TheRestIsAddedWhereOneIsNoText)
{
    Paths paths;
    std::vector<std::string> expected;
    for (const std::string& name : hostileNames) {
        paths.push_back(folder(name));
        if (!LinuxDesktop::PropertyList::unstorableReason(NS::Value(paths.back().native())))
            expected.push_back(paths.back());
    }
    const Answer answer = run("add-folders", paths);
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("Rename it"), std::string::npos);
    EXPECT_EQ(list(), expected);
    EXPECT_LT(expected.size(), paths.size());
}

TEST_F(AddFolders, SettingsThatCannotBeWrittenAreNamed)
{
    const Answer answer =
        run("add-folders", {folder("a")}, {.background = false, .caller = {}, .before = forbidWriting});
    EXPECT_EQ(answer.kind, '1');
    EXPECT_NE(answer.words.find("cannot be written"), std::string::npos);
    EXPECT_EQ(list(), std::vector<std::string>{});
}

TEST_F(AddFolders, ItDoesNotApplyToFiles)
{
    EXPECT_EQ(run("add-folders", {file("a")}).kind, '2');
    EXPECT_EQ(run("add-folders", {folder("b"), listed() / "a"}).kind, '2');
    EXPECT_EQ(list(), std::vector<std::string>{});
}

} // namespace
