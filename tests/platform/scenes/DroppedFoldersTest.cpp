#include "platform/linux/scenes/AlertDialog.h"
#include "platform/linux/scenes/FolderDrops.h"
#include "platform/linux/scenes/RowList.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace {

using namespace LinuxDesktop;

/// A person's files, and a list that folders are dropped on.
class DroppedFoldersTest : public testing::Test {
protected:
    DroppedFoldersTest()
    {
        window.resize(300, 200);
        window.show();
    }

    // The toolkit cannot remove what has a name that is no text.
    ~DroppedFoldersTest() override { std::filesystem::remove_all(files.path().toStdString()); }

    std::string makeFolder(const QByteArray& name)
    {
        std::string path = files.path().toStdString() + '/' + name.toStdString();
        EXPECT_EQ(mkdir(path.c_str(), 0700), 0);
        return path;
    }
    std::string makeFile(const QString& name)
    {
        QFile file(files.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName().toStdString();
    }
    static QByteArray addressOf(const std::string& path)
    {
        return QByteArray::fromStdString(NS::URL::fileURLWithPath(path).absoluteString());
    }
    static std::vector<std::string> pathsOf(const std::vector<NS::URL>& urls)
    {
        std::vector<std::string> paths;
        for (const NS::URL& url : urls)
            paths.push_back(url.path());
        return paths;
    }
    std::vector<std::string> pathsIn(const QByteArray& addresses)
    {
        return pathsOf(droppedFolders(addresses, refusal).folders);
    }

    bool enter(const QMimeData& data, Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
    {
        QDragEnterEvent event({20, 20}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&list, &event);
        action = event.dropAction();
        return event.isAccepted();
    }
    bool drop(const QMimeData& data)
    {
        enter(data);
        QDropEvent event({20, 20}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&list, &event);
        const bool accepted = event.isAccepted();
        QApplication::processEvents();
        return accepted;
    }
    static QMimeData* addresses(QMimeData& data, const QByteArray& text)
    {
        data.setData(QStringLiteral("text/uri-list"), text);
        return &data;
    }
    AlertDialog* alert()
    {
        for (auto* dialog : window.findChildren<AlertDialog*>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    static QString wordsOf(const AlertDialog& alert)
    {
        QString words;
        for (const auto* label : alert.findChildren<QLabel*>())
            words += label->text() + u'\n';
        return words;
    }

    QTemporaryDir files;
    PathRefusal refusal;
    QWidget window;
    RowList& list = *new RowList(&window);
    std::vector<std::vector<std::string>> taken;
    std::function<void()> whenTaken = [] {};
    FolderDrops& drops = *new FolderDrops(
        list, [this](const std::string& path) { return refusal ? refusal(path) : QString(); },
        [this](const std::vector<NS::URL>& folders) {
            taken.push_back(pathsOf(folders));
            whenTaken();
        });
    Qt::DropAction action = Qt::IgnoreAction;
};

TEST_F(DroppedFoldersTest, FoldersAreTakenInTheirOrderByteForByte)
{
    const std::string odd = makeFolder("caf\xe9 %#?\n");
    const std::string plain = makeFolder("b");
    EXPECT_EQ(pathsIn("# a remark\r\n" + addressOf(odd) + "\r\n" + addressOf(plain) + "\r\n"),
              (std::vector{odd, plain}));
}

TEST_F(DroppedFoldersTest, ThisComputerHasSeveralNamesAndAPathSeveralForms)
{
    const QByteArray folder = QByteArray::fromStdString(makeFolder("a"));
    const std::vector expected{folder.toStdString()};
    EXPECT_EQ(pathsIn("file://localhost" + folder), expected);
    EXPECT_EQ(pathsIn("file://" + QSysInfo::machineHostName().toUtf8() + folder), expected);
    EXPECT_EQ(pathsIn("file:" + folder), expected);
    EXPECT_EQ(pathsIn("FILE://" + folder + "/"), expected);
    EXPECT_EQ(pathsIn("file://" + folder + "/./b/../"), expected);
    EXPECT_EQ(pathsIn("file:///"), (std::vector<std::string>{"/"}));
}

TEST_F(DroppedFoldersTest, ALinkToAFolderIsOne)
{
    const std::string folder = makeFolder("a");
    const QString link = files.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(QString::fromStdString(folder), link));
    EXPECT_EQ(pathsIn(addressOf(link.toStdString())), (std::vector{link.toStdString()}));
}

TEST_F(DroppedFoldersTest, WhatIsNoFolderOfThisComputerIsRefusedInWords)
{
    const std::string file = makeFile(QStringLiteral("Report.pdf"));
    const std::string gone = files.path().toStdString() + "/gone";
    const std::vector<std::pair<QByteArray, QString>> refusals{
        {addressOf(file),
         QStringLiteral("“%1” cannot be added: it is not a folder.").arg(QString::fromStdString(file))},
        {addressOf(gone), QStringLiteral("“%1” cannot be found.").arg(QString::fromStdString(gone))},
        {"sftp://host/home",
         QStringLiteral("“sftp://host/home” cannot be added: it is not a folder of this computer.")},
        {"file://elsewhere/home",
         QStringLiteral("“file://elsewhere/home” cannot be added: it is not a folder of this computer.")},
        {"file:///tmp%00", QStringLiteral("“file:///tmp%00” cannot be added: it is not a folder of this computer.")},
        {"nonsense", QStringLiteral("“nonsense” cannot be added: it is not a folder of this computer.")},
    };
    for (const auto& [address, words] : refusals) {
        const DroppedFolders dropped = droppedFolders(address, refusal);
        EXPECT_TRUE(dropped.folders.empty());
        EXPECT_EQ(dropped.refusals, QStringList{words});
    }
}

TEST_F(DroppedFoldersTest, AFolderThatMayNotBeUsedIsRefusedWithItsWords)
{
    const std::string folder = makeFolder("a");
    refusal = [&](const std::string& path) { return path == folder ? QStringLiteral("not this one") : QString(); };
    EXPECT_EQ(droppedFolders(addressOf(folder), refusal).refusals, QStringList{QStringLiteral("not this one")});
}

TEST_F(DroppedFoldersTest, TheListTakesAddressesAsCopiesAndNothingElse)
{
    QMimeData data;
    data.setText(QStringLiteral("words"));
    EXPECT_FALSE(enter(data));
    addresses(data, "file:///");
    EXPECT_TRUE(enter(data));
    EXPECT_EQ(action, Qt::CopyAction);
    EXPECT_FALSE(enter(data, Qt::MoveAction));
}

TEST_F(DroppedFoldersTest, TheListShowsThatItTakesWhatIsHeldOverIt)
{
    QMimeData data;
    addresses(data, "file:///");
    const QImage before = list.grab().toImage();
    enter(data);
    EXPECT_NE(list.grab().toImage(), before);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&list, &leave);
    EXPECT_EQ(list.grab().toImage(), before);
    enter(data);
    drop(data);
    EXPECT_EQ(list.grab().toImage(), before);
}

TEST_F(DroppedFoldersTest, WhatIsDroppedIsTakenAndTheRestIsToldInOneAlert)
{
    const std::string folder = makeFolder("a");
    QMimeData data;
    EXPECT_TRUE(drop(*addresses(data, addressOf(folder) + '\n' + addressOf(makeFile(QStringLiteral("b"))))));
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken.front(), std::vector{folder});
    ASSERT_NE(alert(), nullptr);
    EXPECT_TRUE(wordsOf(*alert()).contains(QStringLiteral("/b” cannot be added: it is not a folder.")));
    EXPECT_EQ(alert()->windowModality(), Qt::WindowModal);
}

TEST_F(DroppedFoldersTest, OfManyThatAreRefusedTheFirstAreNamedAndTheOthersCounted)
{
    QMimeData data;
    QByteArray all;
    for (int number = 0; number < 8; ++number)
        all += "sftp://host/" + QByteArray::number(number) + '\n';
    drop(*addresses(data, all));
    EXPECT_TRUE(taken.empty());
    ASSERT_NE(alert(), nullptr);
    const QStringList lines = alert()->accessibleDescription().split(u'\n');
    EXPECT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.last(), QStringLiteral("And 3 more."));
}

TEST_F(DroppedFoldersTest, WhatIsRefusedIsToldAfterAnAlertAboutWhatWasTaken)
{
    auto* notice = new AlertDialog;
    notice->setParent(&window, notice->windowFlags());
    notice->setWindowModality(Qt::WindowModal);
    notice->addButton(QStringLiteral("Yes"));
    whenTaken = [&] { notice->show(); };
    QMimeData data;
    drop(*addresses(data, addressOf(makeFolder("a")) + "\nsftp://host/"));
    EXPECT_EQ(alert(), notice);
    notice->buttons().front()->click();
    ASSERT_NE(alert(), nullptr);
    EXPECT_TRUE(wordsOf(*alert()).contains(QStringLiteral("sftp://host/")));
}

TEST_F(DroppedFoldersTest, BehindAPanelNothingIsTaken)
{
    QDialog panel(&window);
    panel.setWindowModality(Qt::WindowModal);
    panel.show();
    QMimeData data;
    addresses(data, addressOf(makeFolder("a")));
    EXPECT_FALSE(enter(data));
    EXPECT_FALSE(drop(data));
    EXPECT_TRUE(taken.empty());
}

} // namespace
