#include "ShownChooser.h"
#include "TemporaryFolder.h"

#include "platform/linux/chooser/FolderModel.h"

#include <QApplication>
#include <QIcon>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

using namespace LinuxDesktop;
using namespace Qt::StringLiterals;

namespace {

/// For its lifetime the icons are those of the theme that comes with the program.
class BreezeIcons {
public:
    BreezeIcons()
    {
        QIcon::setThemeSearchPaths({u"/usr/share/icons"_s});
        QIcon::setThemeName(u"breeze"_s);
        EXPECT_TRUE(QIcon::hasThemeIcon(u"folder"_s));
    }
    ~BreezeIcons()
    {
        QIcon::setThemeSearchPaths(m_paths);
        QIcon::setThemeName(m_name);
    }
    BreezeIcons(const BreezeIcons&) = delete;
    BreezeIcons& operator=(const BreezeIcons&) = delete;

private:
    const QStringList m_paths = QIcon::themeSearchPaths();
    const QString m_name = QIcon::themeName();
};

/// The average colour of a row's icon as it is drawn at a scale: outlines have less of any than what is filled.
std::array<double, 4> colorAt(qreal scale, const QIcon& icon)
{
    const QImage image =
        icon.pixmap(rowIconSize, scale).toImage().convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    std::array<double, 4> sum = {};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < 4 * image.width(); ++x)
            sum.at(static_cast<std::size_t>(x % 4)) += image.constScanLine(y)[x];
    }
    for (double& channel : sum)
        channel /= image.width() * image.height();
    return sum;
}

/// How much two colours differ, from 0 to 255.
double difference(const std::array<double, 4>& one, const std::array<double, 4>& other)
{
    double most = 0;
    for (std::size_t channel = 0; channel < one.size(); ++channel)
        most = std::max(most, std::abs(one.at(channel) - other.at(channel)));
    return most;
}

QIcon iconIn(const FolderModel& model, int row)
{
    return model.index(row, FolderModel::Name).data(Qt::DecorationRole).value<QIcon>();
}

FolderModel& modelOf(FolderModel& model)
{
    model.setEntries({{.name = "folder", .kind = FileEntry::Kind::Folder},
                      {.name = "file.pdf"},
                      {.name = "link.pdf", .isLink = true},
                      {.name = "text.txt"}});
    return model;
}

} // namespace

TEST(Look, IconsAreDrawnInOneStyleAtEveryScale)
{
    const BreezeIcons icons;
    FolderModel model;
    modelOf(model);
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto plain = colorAt(1.0, iconIn(model, row));
        for (const qreal scale : {1.25, 1.5, 2.0})
            EXPECT_LT(difference(plain, colorAt(scale, iconIn(model, row))), 4.0) << row << " at " << scale;
    }
}

TEST(Look, ToolButtonsHaveTheIconsForDarkWindowsOnceTheyAreDark)
{
    const BreezeIcons icons;
    ModalState modal;
    FileChooser chooser(modal);
    chooser.setCanChooseDirectories(true);
    runChooser(chooser, [](const ShownChooser& shown) {
        const auto* button = shown.dialog().findChild<QToolButton*>(u"upButton"_s);
        const auto light = colorAt(1.0, button->icon());
        const QPalette palette = QApplication::palette();
        QPalette dark = palette;
        dark.setColor(QPalette::Window, Qt::black);
        QApplication::setPalette(dark);
        QIcon::setThemeName(u"breeze-dark"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return difference(light, colorAt(1.0, button->icon())) > 4.0; }));
        QApplication::setPalette(palette);
        shown.cancel();
    });
}

TEST(Look, ToolButtonsAreDrawnInOneStyleAtEveryScale)
{
    const BreezeIcons icons;
    ModalState modal;
    FileChooser chooser(modal);
    chooser.setCanChooseDirectories(true);
    runChooser(chooser, [](const ShownChooser& shown) {
        for (const auto* button : shown.dialog().findChildren<QToolButton*>()) {
            if (button->text().isEmpty())
                continue;
            const auto plain = colorAt(1.0, button->icon());
            for (const qreal scale : {1.25, 1.5, 2.0})
                EXPECT_LT(difference(plain, colorAt(scale, button->icon())), 4.0)
                    << button->objectName().toStdString() << " at " << scale;
        }
        shown.cancel();
    });
}

TEST(Look, ALinkIsToldByASignOnItsIconAndNotByItsLetters)
{
    const BreezeIcons icons;
    FolderModel model;
    modelOf(model);
    EXPECT_GT(difference(colorAt(1.0, iconIn(model, 1)), colorAt(1.0, iconIn(model, 2))), 4.0);
    EXPECT_FALSE(model.index(2, FolderModel::Name).data(Qt::FontRole).isValid());
}

TEST(Look, AFolderHasNoSize)
{
    FolderModel model;
    modelOf(model);
    EXPECT_EQ(model.index(0, FolderModel::Size).data().toString(), QString());
    EXPECT_EQ(model.index(1, FolderModel::Size).data().toString(), u"0 bytes"_s);
}

TEST(Look, WhatIsNotKnownToHaveBeenChangedHasNoDate)
{
    FolderModel model;
    modelOf(model);
    EXPECT_EQ(model.index(0, FolderModel::Modified).data().toString(), QString());
}

TEST(Look, ANarrowWindowLeavesTheNamesTheirRoom)
{
    const TemporaryFolder folder;
    ModalState modal;
    FileChooser chooser(modal);
    chooser.setCanChooseDirectories(true);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.file("a file with a name of some length")));
    runChooser(chooser, [](const ShownChooser& shown) {
        const auto columns = [&] {
            return std::pair(!shown.list().isColumnHidden(FolderModel::Size),
                             !shown.list().isColumnHidden(FolderModel::Modified));
        };
        EXPECT_EQ(columns(), std::pair(true, true));
        shown.dialog().resize(440, 480);
        EXPECT_EQ(shown.dialog().width(), 440);
        EXPECT_TRUE(QTest::qWaitFor([&] { return columns() == std::pair(false, false); }));
        EXPECT_GE(shown.list().columnWidth(FolderModel::Name), 220);
        EXPECT_FALSE(shown.list().horizontalScrollBar()->isVisible());
        shown.dialog().resize(900, 480);
        EXPECT_TRUE(QTest::qWaitFor([&] { return columns() == std::pair(true, true); }));
        shown.cancel();
    });
}

TEST(Look, AnEmptyListShowsWhetherItHasTheKeyboard)
{
    const TemporaryFolder folder;
    ModalState modal;
    FileChooser chooser(modal);
    chooser.setDirectoryURL(NS::URL::fileURLWithPath(folder.path()));
    runChooser(chooser, [](const ShownChooser& shown) {
        EXPECT_TRUE(shown.list().hasFocus());
        const QImage with = shown.list().viewport()->grab().toImage();
        shown.pathField().setFocus();
        EXPECT_NE(shown.list().viewport()->grab().toImage(), with);
        shown.cancel();
    });
}

TEST(Look, ToolButtonsAreLargeEnoughToHit)
{
    ModalState modal;
    FileChooser chooser(modal);
    chooser.setCanChooseDirectories(true);
    runChooser(chooser, [](const ShownChooser& shown) {
        for (const auto* button : shown.dialog().findChildren<QToolButton*>()) {
            if (!button->isVisible() || button->text().isEmpty())
                continue;
            EXPECT_GE(button->width(), 36) << button->objectName().toStdString();
            EXPECT_GE(button->height(), 36) << button->objectName().toStdString();
            EXPECT_GE(button->iconSize().width(), 22);
        }
        shown.cancel();
    });
}
