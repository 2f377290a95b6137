#include "settings/MenuCatalogue.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

QString iconOf(const CatalogueRow& action)
{
    return QStringLiteral(ORVIK_ACTION_ICONS "/scalable/actions/orvik-menu-") +
           QString::fromStdString(std::string(action.identifier)) + QStringLiteral(".svg");
}

/// As a menu shows it.
QImage drawnOn(const QColor& background, const QString& icon)
{
    QImage menu(16, 16, QImage::Format_RGB32);
    menu.fill(background);
    QPainter painter(&menu);
    QSvgRenderer(icon).render(&painter, QRectF(0, 0, 16, 16));
    return menu;
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// How many of the 256 pixels a person tells from the background.
int visiblePixels(const QColor& background, const QString& icon)
{
    const QImage menu = drawnOn(background, icon);
    int count = 0;
    for (int y = 0; y < menu.height(); ++y) {
        for (int x = 0; x < menu.width(); ++x)
            count += contrast(menu.pixelColor(x, y), background) >= 2 ? 1 : 0;
    }
    return count;
}

TEST(ActionIcons, EveryActionHasOneThatIsSeenInLightAndInDarkMenus)
{
    for (const CatalogueRow& action : menuCatalogue) {
        ASSERT_TRUE(QFile::exists(iconOf(action))) << action.identifier;
        for (const QColor& background : {QColor(Qt::white), QColor(0x2d, 0x2d, 0x2d)})
            EXPECT_GT(visiblePixels(background, iconOf(action)), 96) << action.identifier;
    }
}

TEST(ActionIcons, AreThereAsDrawnInTheSizesOfMenus)
{
    const std::vector<std::pair<QString, int>> sizes{{QStringLiteral("16x16"), 16}, {QStringLiteral("16x16@2"), 32}};
    for (const CatalogueRow& action : menuCatalogue) {
        for (const auto& [folder, pixels] : sizes) {
            const QImage icon(QStringLiteral(ORVIK_ACTION_ICONS "/%1/actions/orvik-menu-%2.png")
                                  .arg(folder, QString::fromStdString(std::string(action.identifier))));
            ASSERT_EQ(icon.size(), QSize(pixels, pixels)) << action.identifier;
            QImage drawn(icon.size(), QImage::Format_ARGB32_Premultiplied);
            drawn.fill(Qt::transparent);
            QPainter painter(&drawn);
            QSvgRenderer(iconOf(action)).render(&painter);
            painter.end();
            EXPECT_EQ(icon.convertToFormat(QImage::Format_ARGB32), drawn.convertToFormat(QImage::Format_ARGB32))
                << action.identifier;
        }
    }
}

TEST(ActionIcons, NoTwoLookAlike)
{
    std::vector<QImage> seen;
    for (const CatalogueRow& action : menuCatalogue) {
        const QImage icon = drawnOn(Qt::white, iconOf(action));
        EXPECT_EQ(std::count(seen.begin(), seen.end(), icon), 0) << action.identifier;
        seen.push_back(icon);
    }
}

} // namespace
