#include "extension/actions/window/LongHeading.h"

#include <QImage>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace MenuExtension {

namespace {

/// How far each line's ink goes from the left, where the heading is as high as it wants to be.
std::vector<int> endsOfLines(const QString& text, int width)
{
    const auto heading = std::make_unique<LongHeading>();
    heading->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    heading->setText(text);
    heading->resize(width, heading->heightForWidth(width));
    const QImage picture = heading->grab().toImage();
    const QColor paper = heading->palette().color(heading->backgroundRole());
    const int lineHeight = heading->fontMetrics().height();
    std::vector<int> ends;
    for (int top = 0; top + lineHeight <= picture.height(); top += lineHeight) {
        ends.push_back(0);
        for (int y = top; y < top + lineHeight; ++y) {
            for (int x = ends.back(); x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) != paper)
                    ends.back() = x + 1;
            }
        }
    }
    return ends;
}

TEST(LongHeading, IsAsHighAsItsLines)
{
    EXPECT_EQ(endsOfLines("short", 300).size(), 1U);
}

TEST(LongHeading, BreaksANameWhereTheLineIsFull)
{
    const std::vector<int> ends = endsOfLines(QString(100, u'W'), 300);
    ASSERT_GT(ends.size(), 3U);
    for (std::size_t line = 0; line + 1 < ends.size(); ++line) {
        EXPECT_GT(ends[line], 270);
        EXPECT_LT(ends[line], 300);
    }
    EXPECT_GT(ends.back(), 0);
}

TEST(LongHeading, BreaksBetweenWordsWhereItCan)
{
    const QString word(20, u'W');
    const std::vector<int> ends = endsOfLines("W " + word, QLabel().fontMetrics().horizontalAdvance(word + u'.'));
    ASSERT_EQ(ends.size(), 2U);
    EXPECT_LT(ends.front(), 30);
}

TEST(LongHeading, IsContentWithAnyWidth)
{
    LongHeading heading;
    heading.setText(QString(255, u'W'));
    EXPECT_EQ(heading.minimumSizeHint().width(), 0);
}

} // namespace

} // namespace MenuExtension
