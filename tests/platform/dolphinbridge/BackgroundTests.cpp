#include "extension/bridges/dolphin/Background.h"

#include "Waiting.h"

#include <KCoreDirLister>
#include <KFileItem>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

using DolphinBridge::isBackground;

namespace {

/// A window with two views side by side, each with what lists its folder, as Dolphin has them.
class BackgroundTest : public testing::Test {
protected:
    BackgroundTest()
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("sub")));
        for (QWidget* const view : {&left, &right})
            view->setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
    }

    // A job that has ended goes with the next events.
    ~BackgroundTest() override
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    [[nodiscard]] QUrl folder() const { return QUrl::fromLocalFile(m_folder.path()); }
    [[nodiscard]] QUrl subfolder() const { return QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("sub"))); }

    /// What was listed.
    static KFileItem show(QWidget& view, const QUrl& folder)
    {
        auto* const between = new QObject(&view);
        auto* const lister = new KCoreDirLister(between);
        lister->openUrl(folder);
        EXPECT_TRUE(waitUntil([&] { return lister->isFinished(); }));
        return lister->rootItem();
    }

    void click(QWidget& view)
    {
        view.setFocus();
        EXPECT_TRUE(waitUntil([&] { return view.hasFocus(); }));
    }

    QWidget window;
    QWidget left{&window};
    QWidget right{&window};

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(BackgroundTest, IsTheFolderThatTheViewShows)
{
    const KFileItem root = show(left, folder());
    click(left);
    EXPECT_TRUE(isBackground(root, &window));
    EXPECT_TRUE(isBackground(KFileItem(folder()), &window));
    EXPECT_TRUE(isBackground(KFileItem(QUrl(folder().toString() + QLatin1Char('/'))), &window));
}

TEST_F(BackgroundTest, IsNoItemOfTheView)
{
    show(left, folder());
    click(left);
    EXPECT_FALSE(isBackground(KFileItem(subfolder()), &window));
}

TEST_F(BackgroundTest, IsThatOfTheViewThatWasClicked)
{
    show(left, folder());
    show(right, subfolder());
    click(left);
    EXPECT_FALSE(isBackground(KFileItem(subfolder()), &window));
    click(right);
    EXPECT_TRUE(isBackground(KFileItem(subfolder()), &window));
}

TEST_F(BackgroundTest, IsKnownByItsNameWithoutAView)
{
    const KFileItem root = show(left, folder());
    ASSERT_EQ(root.name(), QStringLiteral("."));
    EXPECT_TRUE(isBackground(root, nullptr));
    EXPECT_FALSE(isBackground(KFileItem(folder()), nullptr));
}

TEST_F(BackgroundTest, IsThatOfAnyViewInSightWhereNoneHasTheFocus)
{
    show(left, folder());
    left.clearFocus();
    ASSERT_TRUE(waitUntil([&] { return !left.hasFocus(); }));
    EXPECT_TRUE(isBackground(KFileItem(folder()), &window));
    left.hide();
    EXPECT_FALSE(isBackground(KFileItem(folder()), &window));
}
