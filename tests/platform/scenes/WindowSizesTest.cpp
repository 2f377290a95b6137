#include "platform/linux/scenes/WindowSizes.h"

#include "platform/linux/scenes/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <sys/stat.h>

namespace {

using namespace LinuxDesktop;

/// A person's folder for the state of programs, which is empty.
class WindowSizesTest : public testing::Test {
protected:
    WindowSizesTest() { qputenv("XDG_STATE_HOME", state.path().toLocal8Bit()); }
    ~WindowSizesTest() override { qputenv("XDG_STATE_HOME", before); }

    void write(const QByteArray& bytes)
    {
        ASSERT_TRUE(QDir(state.path()).mkpath(QStringLiteral("orvik-menu")));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytes() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// What the file says of the screen, after the size.
    QByteArray screenText() const
    {
        return QByteArray::number(screen.size().width()) + 'x' + QByteArray::number(screen.size().height()) + ' ' +
               screen.name().toUtf8();
    }
    static std::unique_ptr<MainWindow> open(const QString& name = QStringLiteral("window"))
    {
        auto window = std::make_unique<MainWindow>();
        window->setObjectName(name);
        window->resize(300, 200);
        window->setMinimumSize(100, 100);
        window->makeKeyAndOrderFront();
        return window;
    }

    const QByteArray before = qgetenv("XDG_STATE_HOME");
    QTemporaryDir state;
    const QString path = state.filePath(QStringLiteral("orvik-menu/window-sizes"));
    const QScreen& screen = *QGuiApplication::primaryScreen();
};

TEST_F(WindowSizesTest, AWindowOpensAsItsSceneHasItUntilAPersonGivesItAnotherSize)
{
    EXPECT_EQ(open()->size(), QSize(300, 200));
    EXPECT_FALSE(QFile::exists(path));
    open()->resize(350, 270);
    EXPECT_EQ(open()->size(), QSize(350, 270));
    EXPECT_EQ(bytes(), "window 350x270 " + screenText() + '\n');
}

TEST_F(WindowSizesTest, EachWindowHasItsOwn)
{
    open()->resize(350, 270);
    open(QStringLiteral("other"))->resize(150, 170);
    EXPECT_EQ(open()->size(), QSize(350, 270));
    EXPECT_EQ(open(QStringLiteral("other"))->size(), QSize(150, 170));
    EXPECT_EQ(open(QStringLiteral("wind"))->size(), QSize(300, 200));
}

TEST_F(WindowSizesTest, EachScreenHasItsOwn)
{
    const QByteArray elsewhere =
        "window 500x400 1x1 " + screen.name().toUtf8() + "\nwindow 500x400 " + screenText() + "2\n";
    write(elsewhere);
    EXPECT_EQ(open()->size(), QSize(300, 200));
    open()->resize(350, 270);
    EXPECT_EQ(bytes(), elsewhere + "window 350x270 " + screenText() + '\n');
}

TEST_F(WindowSizesTest, AMaximizedWindowIsLeftAsItWasBefore)
{
    auto window = open();
    window->resize(350, 270);
    window->showMaximized();
    QApplication::processEvents();
    ASSERT_NE(window->size(), QSize(350, 270));
    window.reset();
    EXPECT_EQ(open()->size(), QSize(350, 270));
}

TEST_F(WindowSizesTest, NothingOpensLargerThanTheScreenOrSmallerThanItsScene)
{
    write("window 30000x30000 " + screenText());
    EXPECT_LE(open()->width(), screen.availableSize().width());
    EXPECT_LE(open()->height(), screen.availableSize().height());
    write("window 1x1 " + screenText());
    EXPECT_EQ(open()->size(), QSize(100, 100));
}

TEST_F(WindowSizesTest, NonsenseIsNotRemembered)
{
    const QByteArray end = ' ' + screenText() + '\n';
    for (const QByteArray& text :
         {QByteArray(), QByteArray("\0\xff\n\n", 4), QByteArray("window"), "window" + end, "window " + screenText(),
          "window 0x0" + end, "window -5x70" + end, "window 99999x70" + end, "window 99999999999x70" + end,
          "window 7x7x7" + end, "window x" + end, "window axb" + end, QByteArray(100000, 'x')}) {
        write(text);
        EXPECT_EQ(open()->size(), QSize(300, 200)) << text.left(60).toStdString();
    }
    // And does not keep what is right from being so.
    open()->resize(350, 270);
    EXPECT_EQ(open()->size(), QSize(350, 270));
}

TEST_F(WindowSizesTest, TheFileDoesNotGrowWithoutEnd)
{
    QByteArray lines;
    for (int number = 0; number < 100; ++number)
        lines += "window 10x10 1x1 screen" + QByteArray::number(number) + '\n';
    write(lines);
    open()->resize(350, 270);
    EXPECT_EQ(bytes().count('\n'), 32);
    EXPECT_TRUE(bytes().endsWith("screen99\nwindow 350x270 " + screenText() + '\n'));
}

TEST_F(WindowSizesTest, SomethingElseInThePlaceOfTheFileIsNotWaitedFor)
{
    ASSERT_TRUE(QDir(state.path()).mkpath(QStringLiteral("orvik-menu")));
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(open()->size(), QSize(300, 200));
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir(state.path()).mkpath(path));
    open()->resize(350, 270);
    EXPECT_EQ(open()->size(), QSize(300, 200));
}

TEST_F(WindowSizesTest, AFolderThatCannotBeMadeIsDoneWithout)
{
    QFile file(state.filePath(QStringLiteral("orvik-menu")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    open()->resize(350, 270);
    EXPECT_EQ(open()->size(), QSize(300, 200));
    EXPECT_EQ(file.size(), 0);
}

} // namespace
