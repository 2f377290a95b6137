#include "platform/linux/scenes/TypeAhead.h"

#include <gtest/gtest.h>

namespace {

using namespace LinuxDesktop;

class TypeAheadTest : public testing::Test {
protected:
    std::optional<int> press(const QString& text, quint64 at, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent key(QEvent::KeyPress, text == u" " ? Qt::Key_Space : Qt::Key_unknown, modifiers, text);
        key.setTimestamp(at);
        const auto row = typeAhead.find(key, current, static_cast<int>(titles.size()),
                                        [this](int number) { return titles.at(number); });
        current = row.value_or(current);
        return row;
    }

    QStringList titles{QStringLiteral("Open Terminal"), QStringLiteral("Resize"),
                       QStringLiteral("Open Files"),    QString(),
                       QStringLiteral("Éclair"),        QStringLiteral("Oat")};
    int current = 0;
    TypeAhead typeAhead;
};

TEST_F(TypeAheadTest, LettersThatFollowEachOtherBelongTogether)
{
    EXPECT_EQ(press(QStringLiteral("o"), 1000), 2);
    EXPECT_EQ(press(QStringLiteral("a"), 2000), 5);
    EXPECT_EQ(press(QStringLiteral("r"), 2500), std::nullopt);
    EXPECT_EQ(current, 5);
}

TEST_F(TypeAheadTest, AfterAPauseASearchBeginsAnew)
{
    EXPECT_EQ(press(QStringLiteral("o"), 1000), 2);
    EXPECT_EQ(press(QStringLiteral("r"), 2001), 1);
}

TEST_F(TypeAheadTest, TheSameLetterLeadsFromOneRowToTheNextRoundAndRound)
{
    EXPECT_EQ(press(QStringLiteral("o"), 0), 2);
    EXPECT_EQ(press(QStringLiteral("o"), 100), 5);
    EXPECT_EQ(press(QStringLiteral("O"), 200), 0);
}

TEST_F(TypeAheadTest, CaseDoesNotMatter)
{
    EXPECT_EQ(press(QStringLiteral("é"), 0), 4);
}

TEST_F(TypeAheadTest, TheSpaceBarBelongsToASearchThatGoesOnWithItAndToNoOther)
{
    EXPECT_EQ(press(QStringLiteral(" "), 0), std::nullopt);
    for (const QChar letter : QStringLiteral("open"))
        press(letter, 0);
    EXPECT_EQ(press(QStringLiteral(" "), 0), 2);
    EXPECT_EQ(press(QStringLiteral("t"), 0), 0);
    EXPECT_EQ(press(QStringLiteral(" "), 0), std::nullopt);
}

TEST_F(TypeAheadTest, CommandsAreNoLetters)
{
    EXPECT_EQ(press(QStringLiteral("r"), 0, Qt::ControlModifier), std::nullopt);
    EXPECT_EQ(press(QStringLiteral("r"), 0, Qt::AltModifier), std::nullopt);
    EXPECT_EQ(press(QStringLiteral("\t"), 0), std::nullopt);
    EXPECT_EQ(press(QStringLiteral("R"), 0, Qt::ShiftModifier), 1);
}

TEST_F(TypeAheadTest, AnEmptyListHasNothingToFind)
{
    titles.clear();
    EXPECT_EQ(press(QStringLiteral("r"), 0), std::nullopt);
}

} // namespace
