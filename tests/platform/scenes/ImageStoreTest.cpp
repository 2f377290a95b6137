#include "platform/linux/scenes/ImageStore.h"
#include "settings/MenuCatalogue.h"
#include "showcase/ShowcaseCatalogue.h"

#include <gtest/gtest.h>

namespace {

using LinuxDesktop::ImageStore;

const QString assets = QStringLiteral(ORVIK_ASSETS);

/// How many pixels are more than half covered.
int visiblePixels(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    }
    return count;
}

TEST(ImageStore, HasEveryImageOfTheCatalogueAndDrawsIt)
{
    ImageStore store(assets);
    for (const CatalogueRow& action : menuCatalogue) {
        EXPECT_TRUE(store.contains(action.image)) << action.image;
        for (const int extent : {16, 24, 48}) {
            const QPixmap drawn =
                store.pixmap(QString::fromStdString(std::string(action.image)), extent, 2.0, Qt::black);
            EXPECT_EQ(drawn.width(), extent * 2);
            // A picture covers a good part of its square and is not a blank one.
            EXPECT_GT(visiblePixels(drawn), drawn.width() * drawn.height() / 12) << action.image;
        }
    }
}

TEST(ImageStore, HasTheIconOfEveryApplicationOfTheShowcaseAndDrawsIt)
{
    ImageStore store(assets);
    for (const ShowcaseApplication& application : showcaseCatalogue) {
        EXPECT_TRUE(store.contains(application.image)) << application.image;
        const QPixmap drawn =
            store.pixmap(QString::fromStdString(std::string(application.image)), 64, 1.0, Qt::black);
        // A tile covers nearly all of its square, and something is drawn on it.
        EXPECT_GT(visiblePixels(drawn), 64 * 64 * 9 / 10) << application.image;
        const QImage image = drawn.toImage();
        int white = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                white += image.pixelColor(x, y) == Qt::white ? 1 : 0;
        }
        EXPECT_GT(white, 64 * 64 / 20) << application.image;
    }
}

TEST(ImageStore, DoesNotHaveTheNumbersThatNoActionUses)
{
    const ImageStore store(assets);
    for (const char* name : {"2", "3", "8", "", "no such image"})
        EXPECT_FALSE(store.contains(name)) << name;
}

TEST(ImageStore, GivesASymbolicImageTheColourOfTheText)
{
    ImageStore store(assets);
    const QColor tint(10, 200, 30);
    const QImage image = store.pixmap(QStringLiteral("empty-folders-symbolic"), 48, 1.0, tint).toImage();
    EXPECT_EQ(image.pixelColor(24, 26), tint);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

TEST(ImageStore, MissesEverythingWhereTheFolderIsMissing)
{
    EXPECT_FALSE(ImageStore(QStringLiteral("/nonexistent")).contains("1"));
}

} // namespace
