#include "extensions/AutostartEntry.h"

#include "Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace ExtensionsTool;

namespace {

struct AutostartEntryTest : AutostartTestFolders, testing::Test {
    AutostartEntry entry{folders(), extension};
    const QString path = own(file);

    void writeSystemWide() const { writeFile(systemWide(file), "[Desktop Entry]\nExec=something\n"); }
};

} // namespace

using Autostart = AutostartEntryTest;

TEST_F(Autostart, IsOffWhereThereIsNoEntry)
{
    EXPECT_FALSE(entry.isOn());
    EXPECT_EQ(entry.path(), path);
}

TEST_F(Autostart, IsSwitchedOnWithAnEntryThatStartsTheProgram)
{
    ASSERT_EQ(entry.switchOn(), std::nullopt);
    EXPECT_TRUE(entry.isOn());
    EXPECT_EQ(readFile(path), QByteArray("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=A title\n"
                                         "Comment=An explanation.\n"
                                         "Exec=" ORVIK_EXTENSION_PROGRAM "\n"
                                         "TryExec=" ORVIK_EXTENSION_PROGRAM "\n"
                                         "Icon=an-icon\n"
                                         "NoDisplay=true\n"
                                         "Terminal=false\n"));
    EXPECT_EQ(QDir(own()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(Autostart, WritesAFileThatAllMayReadInAFolderThatIsTheUsers)
{
    const mode_t mask = ::umask(0);
    ASSERT_EQ(entry.switchOn(), std::nullopt);
    ::umask(mask);
    struct stat status {};
    ASSERT_EQ(::stat(qPrintable(path), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0644U);
    ASSERT_EQ(::stat(qPrintable(own()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(Autostart, ReplacesWhateverEntryWasThere)
{
    writeFile(path, "[Desktop Entry]\nExec=something\nHidden=true\nX-Foreign=1\n");
    EXPECT_FALSE(entry.isOn());
    ASSERT_EQ(entry.switchOn(), std::nullopt);
    EXPECT_TRUE(entry.isOn());
    EXPECT_FALSE(readFile(path).contains("Foreign"));
}

TEST_F(Autostart, IsSwitchedOffByRemovingTheEntry)
{
    ASSERT_EQ(entry.switchOn(), std::nullopt);
    ASSERT_EQ(entry.switchOff(), std::nullopt);
    EXPECT_FALSE(entry.isOn());
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(entry.switchOff(), std::nullopt) << "it is off already";
}

TEST_F(Autostart, IsOffWhereTheEntryIsHiddenOrDisabledOrNone)
{
    for (const char* contents : {"[Desktop Entry]\nExec=a\nHidden=true\n", "", "[Desktop Entry]\nName=a\n",
                                 "[Desktop Entry]\nExec=a\nX-GNOME-Autostart-enabled=false\n"}) {
        writeFile(path, contents);
        EXPECT_FALSE(entry.isOn()) << contents;
    }
    writeFile(path, "[Desktop Entry]\nExec=a\nHidden=false\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_TRUE(entry.isOn());
}

TEST_F(Autostart, OfEveryUserIsHiddenFromOneAndBroughtBack)
{
    writeSystemWide();
    EXPECT_TRUE(entry.isOn());
    ASSERT_EQ(entry.switchOff(), std::nullopt);
    EXPECT_FALSE(entry.isOn());
    EXPECT_TRUE(readFile(path).contains("\nHidden=true\n"));
    ASSERT_EQ(entry.switchOn(), std::nullopt);
    EXPECT_TRUE(entry.isOn());
    EXPECT_FALSE(readFile(path).contains("Hidden"));
}

TEST_F(Autostart, ReplacesALinkAndLeavesAloneWhatItLeadsTo)
{
    const QString target = root.filePath(QStringLiteral("kept.desktop"));
    const QByteArray contents = "[Desktop Entry]\nExec=something\nHidden=true\n";
    writeFile(target, contents);
    ASSERT_TRUE(QDir().mkpath(own()));
    for (const bool systemWide : {false, true}) {
        if (systemWide)
            writeSystemWide();
        ASSERT_TRUE(QFile::link(target, path));
        EXPECT_FALSE(entry.isOn()) << "what it leads to counts";
        EXPECT_EQ(entry.switchOn(), std::nullopt);
        EXPECT_FALSE(QFileInfo(path).isSymLink());
        EXPECT_TRUE(entry.isOn());
        EXPECT_EQ(readFile(target), contents);

        ASSERT_TRUE(QFile::remove(path));
        ASSERT_TRUE(QFile::link(target, path));
        EXPECT_EQ(entry.switchOff(), std::nullopt);
        EXPECT_FALSE(QFileInfo(path).isSymLink());
        EXPECT_FALSE(entry.isOn());
        EXPECT_EQ(readFile(target), contents);
        QFile::remove(path);
    }
}

TEST_F(Autostart, ReplacesALinkThatLeadsNowhereToAFolderOrToItself)
{
    ASSERT_TRUE(QDir().mkpath(own()));
    const QString missing = root.filePath(QStringLiteral("missing.desktop"));
    for (const QString& target : {missing, root.path(), path}) {
        ASSERT_EQ(::symlink(qPrintable(target), qPrintable(path)), 0);
        EXPECT_FALSE(entry.isOn());
        EXPECT_EQ(entry.switchOn(), std::nullopt) << target.toStdString();
        EXPECT_TRUE(entry.isOn()) << target.toStdString();
        EXPECT_FALSE(QFile::exists(missing));

        ASSERT_TRUE(QFile::remove(path));
        ASSERT_EQ(::symlink(qPrintable(target), qPrintable(path)), 0);
        EXPECT_EQ(entry.switchOff(), std::nullopt) << target.toStdString();
        EXPECT_TRUE(QDir(own()).isEmpty()) << target.toStdString();
    }
}

TEST_F(Autostart, ReplacesAPipeWithoutWaitingForItsOtherEnd)
{
    ASSERT_TRUE(QDir().mkpath(own()));
    const QString pipe = root.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    for (const bool linked : {false, true}) {
        const auto put = [&] {
            ASSERT_EQ(linked ? ::symlink(qPrintable(pipe), qPrintable(path)) : ::mkfifo(qPrintable(path), 0600), 0);
        };
        put();
        EXPECT_FALSE(entry.isOn());
        EXPECT_EQ(entry.switchOn(), std::nullopt);
        EXPECT_TRUE(entry.isOn());
        ASSERT_TRUE(QFile::remove(path));
        put();
        EXPECT_EQ(entry.switchOff(), std::nullopt);
        EXPECT_TRUE(
            QDir(own()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    }
}

TEST_F(Autostart, SaysWhyItCouldNotBeSwitchedAndLeavesThingsAsTheyWere)
{
    writeFile(root.filePath(QStringLiteral("own")), "a file where the folder should be");
    const QString folder = own();
    EXPECT_EQ(entry.switchOn(), QStringLiteral("Could not make the folder %1: Not a directory.").arg(folder));
    EXPECT_FALSE(entry.isOn());

    ASSERT_TRUE(QFile::remove(root.filePath(QStringLiteral("own"))));
    // Nothing can be renamed to the name of a folder, nor can that be removed as a file.
    ASSERT_TRUE(QDir().mkpath(path + QStringLiteral("/something")));
    EXPECT_EQ(entry.switchOn(), QStringLiteral("Could not write %1: Is a directory.").arg(path));
    const auto other = entry.switchOff();
    ASSERT_TRUE(other);
    EXPECT_TRUE(other->startsWith(QStringLiteral("Could not remove %1: ").arg(path))) << other->toStdString();
    EXPECT_FALSE(entry.isOn());
    EXPECT_EQ(QDir(own()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST(AutostartFolders, AreThoseThatTheEnvironmentNames)
{
    qputenv("XDG_CONFIG_HOME", "/own/");
    qputenv("XDG_CONFIG_DIRS", "/one:relative:/two");
    EXPECT_EQ(autostartFolders().own, QStringLiteral("/own/autostart"));
    EXPECT_EQ(autostartFolders().systemWide,
              (QStringList{QStringLiteral("/one/autostart"), QStringLiteral("/two/autostart")}));
}

TEST(AutostartFolders, AreTheUsualOnesWhereItNamesNone)
{
    qputenv("HOME", "/somebody");
    qputenv("XDG_CONFIG_HOME", "relative");
    qputenv("XDG_CONFIG_DIRS", "");
    EXPECT_EQ(autostartFolders().own, QStringLiteral("/somebody/.config/autostart"));
    EXPECT_EQ(autostartFolders().systemWide, QStringList{QStringLiteral("/etc/xdg/autostart")});
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(autostartFolders().own, QStringLiteral("/somebody/.config/autostart"));
}
